#include "app/AppDelegate.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/StartWindow.h"

#include <QSessionManager>

namespace velvane {

AppDelegate::AppDelegate(Documents &documents)
    : m_documents(documents)
    , m_startWindow(std::make_unique<StartWindow>(documents))
{
    connect(&documents, &Documents::lastWindowClosed, this, &AppDelegate::showStartWindow);
    connect(&documents, &Documents::quitReady, this, &AppDelegate::terminated);
    connect(&documents, &Documents::windowsChanged, this, [this] {
        if (!m_documents.windows().isEmpty())
            m_startWindow->hide();
    });
    connect(m_startWindow.get(), &StartWindow::closed, this, &AppDelegate::terminated);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::showStartWindow()
{
    m_startWindow->show();
    m_startWindow->raise();
    m_startWindow->activateWindow();
}

void AppDelegate::sessionWillEnd(QSessionManager &session)
{
    if (!sessionMayEnd() && session.allowsInteraction())
        session.cancel();
}

bool AppDelegate::sessionMayEnd()
{
    const QList<EditorWindow *> &windows = m_documents.windows();
    const bool mayEnd =
        std::all_of(windows.begin(), windows.end(), std::mem_fn(&EditorWindow::mayClose));
    if (!mayEnd || m_documents.taskbar().progress())
        m_documents.quit();
    return mayEnd;
}

} // namespace velvane
