#include "app/EditorWindow.h"

#include "app/Documents.h"
#include "app/DroppedDemos.h"
#include "app/FilePanel.h"
#include "app/MenuBar.h"
#include "app/Question.h"
#include "app/WindowConfigurator.h"
#include "editor/ContentView.h"
#include "model/DocumentError.h"
#include "model/ProjectFile.h"

#include <QDropEvent>
#include <QFileInfo>

namespace velvane {

EditorWindow::EditorWindow(Documents &documents, std::unique_ptr<DemoDocument> document,
                           const DocumentFile &file)
    : m_documents(documents)
    , m_document(std::move(document))
    , m_file(file)
    , m_saved(m_document->project().docState())
    , m_content(new ContentView(m_document->project(), documents.desktop(), documents.runSettings(),
                                documents.apps(), this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setCentralWidget(m_content);
    new WindowConfigurator(*this);
    m_document->project().setUndoManager(&m_undo);
    buildMenuBar(*this);
    watchProject();
    m_content->recordActions().askAboutCanvasWith(
        [this](QSizeF screen, const auto &chosen) { askAboutCanvas(screen, chosen); });
    connect(&m_watch, &FileWatch::touched, this, &EditorWindow::onFileChanged);
    m_watch.setPath(m_file.path());
    updateTitle();
}

EditorWindow::~EditorWindow()
{
    // The editor borrows the demo.
    delete m_content;
}

void EditorWindow::watchProject()
{
    Project &project = m_document->project();
    for (const auto changed :
         {&Project::stepsChanged, &Project::canvasSizeChanged, &Project::startPointChanged,
          &Project::fpsChanged, &Project::backgroundChanged, &Project::recordingBookmarkChanged})
        connect(&project, changed, this, [this] {
            keepOpen();
            updateTitle();
        });
}

QString EditorWindow::name() const
{
    if (!m_file.isEmpty())
        return QFileInfo(m_file.path()).completeBaseName();
    return m_untitledNumber == 1 ? tr("Untitled") : tr("Untitled %1").arg(m_untitledNumber);
}

void EditorWindow::setUntitledNumber(int number)
{
    m_untitledNumber = number;
    updateTitle();
}

bool EditorWindow::isModified() const
{
    return !m_saved || !(m_document->project().docState() == *m_saved);
}

std::optional<DocState> EditorWindow::unsaved() const
{
    DocState state = m_content->recordActions().stateSoFar();
    return m_saved && state == *m_saved ? std::nullopt : std::optional(std::move(state));
}

void EditorWindow::setUnsaved()
{
    m_saved.reset();
    updateTitle();
}

void EditorWindow::replace(const DocState &state, const QString &name)
{
    m_content->fieldEditing().commitOpenGesture();
    Project &project = m_document->project();
    project.edit(name, [&] { project.applyDocState(state); });
}

void EditorWindow::updateTitle()
{
    setWindowTitle(name() + QStringLiteral("[*]"));
    setWindowModified(isModified());
    Q_EMIT documentChanged();
}

void EditorWindow::newDemo()
{
    m_documents.newDemo();
}

void EditorWindow::open()
{
    m_documents.openPanel(this);
}

void EditorWindow::openRecent(const QString &path)
{
    m_documents.open(path, this);
}

void EditorWindow::save()
{
    saveThen([](bool) {});
}

void EditorWindow::saveAs()
{
    saveAsThen([](bool) {});
}

void EditorWindow::quit()
{
    m_documents.quit();
}

void EditorWindow::saveThen(const Done &done)
{
    m_content->fieldEditing().commitOpenGesture();
    if (m_file.isEmpty())
        saveAsThen(done);
    else
        saveTo(m_file, done);
}

void EditorWindow::saveAsThen(const Done &done)
{
    m_content->fieldEditing().commitOpenGesture();
    const QString suggested = m_file.isEmpty() ? name() : m_file.path();
    FilePanel::save(this, suggested, [this, done](const QString &path) {
        if (path.isEmpty())
            return done(false);
        const EditorWindow *other = m_documents.windowFor(path);
        if (!other || other == this)
            return saveTo(DocumentFile(path), done);
        ask(this,
            Question::message(tr("“%1” is open in another window.").arg(QFileInfo(path).fileName()),
                              tr("Choose another name, or close that window first.")));
        done(false);
    });
}

void EditorWindow::saveTo(DocumentFile file, const Done &done)
{
    const DocState state = m_document->project().docState();
    if (const auto refusal = file.write(m_document->snapshot()))
        return refusal->isChanged ? askBeforeReplacing(file.path(), done)
                                  : tellFailure(file.path(), refusal->reason, done);
    m_file = file;
    m_saved = state;
    m_watch.setPath(m_file.path());
    m_documents.recents().add(m_file.path(), m_document->project().snapshot());
    m_content->statusLine().setMessage(tr("Saved %1.").arg(QFileInfo(m_file.path()).fileName()));
    updateTitle();
    done(true);
}

void EditorWindow::tellFailure(const QString &path, const QString &refusal, const Done &done)
{
    m_content->statusLine().setMessage(
        tr("“%1” could not be saved.").arg(QFileInfo(path).fileName()));
    const Question question{
        tr("“%1” could not be saved.").arg(QFileInfo(path).fileName()),
        tr("It %1. The demo is still open here with all your changes.").arg(refusal),
        {tr("Save As…"), tr("Cancel")}};
    ask(this, question, [this, done](int answer) { answer == 0 ? saveAsThen(done) : done(false); });
}

void EditorWindow::askBeforeReplacing(const QString &path, const Done &done)
{
    const Question question{
        tr("“%1” was changed by another program since it was opened or saved here.")
            .arg(QFileInfo(path).completeBaseName()),
        tr("Replacing it loses what the other program saved."),
        {tr("Save As…"), tr("Replace"), tr("Cancel")}};
    // Agreed to is the loss of what the file holds now, not of what may come until the answer.
    ask(this, question, [this, seen = DocumentFile(path), done](int answer) {
        if (answer == 0)
            saveAsThen(done);
        else if (answer == 1)
            saveTo(seen, done);
        else
            done(false);
    });
}

void EditorWindow::onFileChanged()
{
    switch (m_file.fate()) {
    case DocumentFile::Fate::unchanged:
        return;
    case DocumentFile::Fate::gone:
        m_content->statusLine().setMessage(
            tr("“%1” was moved or deleted; saving writes it again.").arg(name()));
        return setUnsaved();
    case DocumentFile::Fate::changed:
        break;
    }
    setUnsaved();
    const Question question{tr("“%1” was changed by another program.").arg(name()),
                            tr("Reloading it can be undone. If you keep your version, saving asks "
                               "before it replaces the other."),
                            {tr("Reload"), tr("Keep My Version")}};
    ask(this, question, [this](int answer) {
        if (answer == 0)
            reload();
    });
}

void EditorWindow::reload()
{
    const DocumentFile file(m_file.path());
    try {
        const auto read = DemoDocument::read(file.path());
        replace(read->project().docState(), tr("Reload"));
        m_file = file;
        m_saved = m_document->project().docState();
        m_watch.setPath(m_file.path());
        updateTitle();
    } catch (const DocumentError &error) {
        ask(this, Question::message(Documents::refusal(file.path(), error.message())));
    }
}

void EditorWindow::askAboutCanvas(QSizeF screen, const RecordActionsController::Chosen &chosen)
{
    const auto sizeText = [](QSizeF size) {
        // In one line.
        return QStringLiteral("%1\u00a0×\u00a0%2").arg(size.width()).arg(size.height());
    };
    const Question question{
        tr("The screen is larger than the canvas."),
        tr("The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at "
           "its edge.")
            .arg(sizeText(screen), sizeText(m_document->project().canvasSize())),
        {tr("Match Screen"), tr("Keep Canvas"), tr("Cancel")}};
    ask(this, question, [chosen](int answer) {
        if (answer < 2)
            chosen(answer == 0 ? CanvasChoice::matchScreen : CanvasChoice::keepCanvas);
    });
}

void EditorWindow::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(DroppedDemos::areIn(*event->mimeData()));
}

void EditorWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    m_documents.open(DroppedDemos::files(*event->mimeData()), this);
}

} // namespace velvane
