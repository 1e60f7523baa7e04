#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/Question.h"
#include "editor/ContentView.h"

#include <QCloseEvent>

namespace velvane {

bool EditorWindow::mayLoseChanges() const
{
    return m_mayLoseChanges || !isModified();
}

bool EditorWindow::mayClose() const
{
    return mayLoseChanges() && (m_mayStopExport || !m_content->exporting().isExporting());
}

void EditorWindow::agreeToClose(bool agreed)
{
    m_mayLoseChanges = agreed;
    m_mayStopExport = agreed;
}

// A run and a recording end before anything is asked: they have the mouse and the keyboard.
bool EditorWindow::endInputThen(const std::function<void()> &again)
{
    return m_content->liveRun().cancelThen(this, again)
           || m_content->recordActions().cancelThen(this, again);
}

void EditorWindow::confirmClose(const Done &done)
{
    if (endInputThen([this, done] { confirmClose(done); }))
        return;
    m_content->fieldEditing().commitOpenGesture();
    if (mayClose())
        return done(true);
    raise();
    activateWindow();
    if (mayLoseChanges())
        askAboutExport(done);
    else
        askAboutChanges(done);
}

void EditorWindow::askAboutChanges(const Done &done)
{
    const Question question{tr("Do you want to save the changes to “%1”?").arg(name()),
                            tr("Your changes are lost if you don't save them."),
                            {tr("Save"), tr("Don't Save"), tr("Cancel")}};
    const auto goOn = [this, done](bool may) { may ? confirmClose(done) : done(false); };
    ask(this, question, [this, goOn](int answer) {
        if (answer == 0)
            return saveThen(goOn);
        m_mayLoseChanges = answer == 1;
        goOn(m_mayLoseChanges);
    });
}

void EditorWindow::askAboutExport(const Done &done)
{
    const Question question{tr("“%1” is still being exported.").arg(name()),
                            tr("Closing the demo stops the export before its movie is whole."),
                            {tr("Stop Export"), tr("Cancel")}};
    ask(this, question, [this, done](int answer) {
        if (answer == 0)
            m_mayStopExport = true;
        else
            keepOpen();
        done(answer == 0);
    });
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    if (endInputThen([this] { close(); }))
        return event->ignore();
    m_content->fieldEditing().commitOpenGesture();
    if (mayClose()) {
        // An export ends before its window.
        if (m_content->exporting().cancelThen(this, [this] { close(); }))
            return event->ignore();
        m_documents.remember(*this);
        return event->accept();
    }
    event->ignore();
    // An edit after quit() has asked: whether it goes on is for the answer to decide.
    const bool quits = m_documents.interruptQuit();
    confirmClose([this, quits](bool may) {
        if (may && quits)
            QMetaObject::invokeMethod(&m_documents, &Documents::quit, Qt::QueuedConnection);
        else if (may)
            QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    });
}

} // namespace velvane
