#include "app/Documents.h"

#include "app/EditorWindow.h"
#include "app/FilePanel.h"
#include "app/Question.h"
#include "app/WindowPlaces.h"
#include "base/FreeMemory.h"
#include "editor/ContentView.h"
#include "model/DocumentError.h"
#include "platform/ToolkitMemory.h"

#include <QFileInfo>
#include <QPixmapCache>

namespace velvane {

namespace {

// Qt ends a thread that had no work for 30 s; with it goes what the thread knew of fonts.
constexpr auto threadsEnd = std::chrono::seconds(40);

} // namespace

Documents::Documents(Desktop &desktop, QSettings &settings)
    : m_desktop(desktop)
    , m_settings(settings)
    , m_runSettings(settings)
    , m_recents(settings)
    , m_apps(desktop.apps())
{
    connect(&m_recents, &RecentDemos::added, this, [this](const QString &path) {
        m_desktop.shell().noteRecent(path, QStringLiteral("application/vnd.orvikel.velvane"));
    });
    connect(&m_recents, &RecentDemos::cleared, this, [this] { m_desktop.shell().forgetRecent(); });
    m_threadsEnd.setSingleShot(true);
    connect(&m_threadsEnd, &QTimer::timeout, this, &Documents::tidy);
}

Documents::~Documents()
{
    for (EditorWindow *window : std::exchange(m_windows, {})) {
        window->disconnect(this);
        delete window;
    }
}

QString Documents::refusal(const QString &path, const QString &reason)
{
    return tr("“%1” cannot be opened: %2.").arg(QFileInfo(path).fileName(), reason);
}

EditorWindow *Documents::windowFor(const QString &path) const
{
    const auto has = [&path](EditorWindow *window) { return window->file().isSameAs(path); };
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), has);
    return found == m_windows.end() ? nullptr : *found;
}

EditorWindow *Documents::newDemo()
{
    return add(std::make_unique<DemoDocument>(), {});
}

EditorWindow *Documents::open(const QString &path, QWidget *asking)
{
    if (EditorWindow *window = windowFor(path))
        return bringUp(window);
    try {
        const DocumentFile file(path);
        auto demo = DemoDocument::read(file.path());
        const bool hasLostBackground = demo->hasLostBackground();
        EditorWindow *window = add(std::move(demo), file);
        if (hasLostBackground)
            window->content().statusLine().setMessage(
                tr("The demo's picture cannot be read; saving leaves it out."));
        return window;
    } catch (const DocumentError &error) {
        ask(asking, Question::message(refusal(path, error.message())));
        return nullptr;
    }
}

void Documents::open(const QStringList &paths, QWidget *asking)
{
    for (const QString &path : paths)
        open(path, asking);
}

void Documents::openPanel(QWidget *asking)
{
    const QList<RecentDemo> recent = m_recents.demos();
    const QString folder =
        recent.isEmpty() ? QString() : QFileInfo(recent.constFirst().path).absolutePath();
    FilePanel::open(asking, folder, [this, asking = QPointer(asking)](const QStringList &paths) {
        open(paths, asking);
    });
}

void Documents::bringUpLast()
{
    if (m_windows.isEmpty())
        return;
    const auto active = std::find_if(m_windows.begin(), m_windows.end(),
                                     std::mem_fn(&EditorWindow::isActiveWindow));
    bringUp(active == m_windows.end() ? m_windows.constLast() : *active);
}

EditorWindow *Documents::bringUp(EditorWindow *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
    return window;
}

EditorWindow *Documents::add(std::unique_ptr<DemoDocument> document, const DocumentFile &file)
{
    if (EditorWindow *open = windowFor(file.path()))
        return bringUp(open);
    if (!file.isEmpty())
        m_recents.add(file.path(), document->project().snapshot());
    auto *window = new EditorWindow(*this, std::move(document), file);
    if (file.isEmpty())
        window->setUntitledNumber(freeUntitledNumber());
    WindowPlaces::place(*window, m_settings, m_windows);
    m_windows.append(window);
    m_taskbar.follow(window->content().exporting());
    connect(window, &QObject::destroyed, this, &Documents::forget);
    window->show();
    Q_EMIT windowsChanged();
    return window;
}

EditorWindow *Documents::addUnsaved(std::unique_ptr<DemoDocument> document,
                                    const DocumentFile &file)
{
    EditorWindow *window = add(std::move(document), file);
    window->setUnsaved();
    return window;
}

int Documents::freeUntitledNumber() const
{
    const auto taken = [this](int number) {
        return std::any_of(m_windows.begin(), m_windows.end(), [=](EditorWindow *window) {
            return window->file().isEmpty() && window->untitledNumber() == number;
        });
    };
    int number = 1;
    while (taken(number))
        ++number;
    return number;
}

void Documents::remember(const EditorWindow &window)
{
    WindowPlaces::remember(window, m_settings);
}

void Documents::forget(QObject *window)
{
    // Only its address is left of the window.
    m_windows.removeIf([window](const EditorWindow *open) { return open == window; });
    Q_EMIT windowsChanged();
    if (!m_windows.isEmpty())
        return;
    if (m_isQuitting)
        return Q_EMIT quitReady();
    // Once what belonged to the window is gone too, and once what the threads kept is.
    QMetaObject::invokeMethod(this, &Documents::tidy, Qt::QueuedConnection);
    m_threadsEnd.start(threadsEnd);
    Q_EMIT lastWindowClosed();
}

void Documents::tidy()
{
    if (!m_windows.isEmpty())
        return;
    QPixmapCache::clear();
    returnToolkitMemory();
    returnFreeMemory();
}

void Documents::quit()
{
    // Nothing closes before every question has been answered, so that Cancel keeps all windows.
    for (EditorWindow *window : qAsConst(m_windows)) {
        if (window->mayClose())
            continue;
        return window->confirmClose([this](bool may) {
            if (may)
                return quit();
            for (EditorWindow *open : qAsConst(m_windows))
                open->keepOpen();
        });
    }
    closeAll();
}

void Documents::quitKept()
{
    for (EditorWindow *window : qAsConst(m_windows))
        window->letGo();
    closeAll();
}

bool Documents::endInputThen(const std::function<void()> &again)
{
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [&](EditorWindow *window) { return window->endInputThen(again); });
}

bool Documents::interruptQuit()
{
    if (!std::exchange(m_isQuitting, false))
        return false;
    // Those that wait for the end of an export were let go for this quit only.
    for (EditorWindow *window : qAsConst(m_windows))
        window->keepOpen();
    return true;
}

void Documents::closeAll()
{
    m_isQuitting = true;
    if (m_windows.isEmpty())
        Q_EMIT quitReady();
    const QList<EditorWindow *> windows = m_windows;
    for (EditorWindow *window : windows)
        window->close();
}

} // namespace velvane
