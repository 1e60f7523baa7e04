#include "app/AppDelegate.h"

#include "app/Autosave.h"
#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/StartWindow.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>
#include <QTimer>

namespace velvane {

AppDelegate::AppDelegate(Documents &documents, Autosave &autosave)
    : m_documents(documents)
    , m_autosave(autosave)
    , m_startWindow(std::make_unique<StartWindow>(documents))
{
    connect(&documents, &Documents::lastWindowClosed, this, &AppDelegate::showStartWindow);
    connect(&documents, &Documents::quitReady, this, &AppDelegate::terminated);
    connect(&documents, &Documents::windowsChanged, this, [this] {
        if (!m_documents.windows().isEmpty())
            m_startWindow->hide();
    });
    connect(m_startWindow.get(), &StartWindow::closed, this, &AppDelegate::terminated);
    qApp->installEventFilter(this);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::showStartWindow()
{
    m_startWindow->show();
    m_startWindow->raise();
    m_startWindow->activateWindow();
}

void AppDelegate::comeForward()
{
    if (!m_documents.windows().isEmpty())
        m_documents.bringUpLast();
    else if (m_startWindow->isVisible())
        showStartWindow();
    else
        m_documents.newDemo();
    letForward();
}

void AppDelegate::open(const QStringList &paths)
{
    QWidget *asking = QApplication::activeWindow();
    if (!asking && m_startWindow->isVisible())
        asking = m_startWindow.get();
    m_documents.open(paths, asking);
    if (m_documents.windows().isEmpty())
        showStartWindow();
    letForward();
}

// Window managers keep back what a program that is not in front shows by itself; but here the user
// has just asked for it. A new window is not known to them yet.
void AppDelegate::letForward()
{
    constexpr auto untilShown = std::chrono::milliseconds(200);
    QTimer::singleShot(untilShown, this, [this] {
        if (!QApplication::activeWindow())
            m_documents.desktop().shell().activate();
    });
}

void AppDelegate::sessionWillEnd(QSessionManager &session)
{
    // The next start opens the demos, whoever makes it: Qt would have us started with its own
    // argument, which we do not know.
    session.setRestartCommand({QCoreApplication::applicationFilePath()});
    if (!sessionMayEnd() && session.allowsInteraction())
        session.cancel();
}

bool AppDelegate::sessionMayEnd()
{
    const bool mayEnd = m_autosave.keepAll();
    m_documents.endInputThen([this] { m_autosave.keepAll(); });
    if (!mayEnd)
        m_documents.quit();
    else if (m_documents.taskbar().progress())
        m_documents.quitKept();
    return mayEnd;
}

void AppDelegate::end()
{
    const bool isKept = m_autosave.keepAll();
    // What was recorded, or clicked in our own windows by a run, comes with its end.
    if (m_documents.endInputThen([this] { end(); }))
        return;
    if (isKept)
        m_documents.quitKept();
    else
        m_documents.quit();
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    // The session manager's last word; Qt itself would close the windows, which ask.
    if (watched == qApp && event->type() == QEvent::Quit) {
        end();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velvane
