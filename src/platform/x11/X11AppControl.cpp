#include "platform/x11/X11AppControl.h"

#include "platform/freedesktop/ThemeIcon.h"
#include "platform/x11/X11Activations.h"
#include "platform/x11/X11WindowIcon.h"
#include "platform/x11/X11Windows.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace velvane {

namespace {

AppInfo infoOf(const DesktopEntry &entry)
{
    AppInfo app;
    app.name = entry.name;
    app.localizedName = entry.localizedName;
    app.id = entry.id;
    app.desktopFile = entry.path;
    app.iconName = entry.icon;
    return app;
}

// Without an entry the window's class is the best name there is, then its title.
AppInfo infoOf(const X11Window &window)
{
    AppInfo app;
    app.name = window.wmClass.isEmpty() ? window.title : window.wmClass;
    app.localizedName = app.name;
    return app;
}

WindowIdentity identityOf(const X11Window &window)
{
    WindowIdentity identity{window.applicationId, window.wmClass, window.wmInstance, {}, {}};
    if (window.pid <= 0)
        return identity;
    const QString process = QStringLiteral("/proc/%1/").arg(window.pid);
    identity.program = QFileInfo(QFile::symLinkTarget(process + "exe")).fileName();
    QFile commandLine(process + "cmdline");
    if (commandLine.open(QFile::ReadOnly)) {
        const QByteArray script = commandLine.read(4096).split('\0').value(1);
        if (script.startsWith('/'))
            identity.script = QFileInfo(QFile::decodeName(script)).fileName();
    }
    return identity;
}

} // namespace

bool sameApp(const AppInfo &a, const AppInfo &b)
{
    return a.id == b.id && a.name == b.name && (!a.id.isEmpty() || a.pid == b.pid);
}

X11AppControl::X11AppControl(const X11Connection &connection, const X11WindowManager &manager,
                             const QProcessEnvironment &environment)
    : m_connection(connection)
    , m_manager(manager)
    , m_display(environment.value("DISPLAY").toLocal8Bit())
    , m_folders(SessionFolders::from(environment))
    , m_entries(m_folders)
    , m_launcher(environment)
{}

std::vector<AppInfo> X11AppControl::installed()
{
    std::vector<AppInfo> apps;
    for (const DesktopEntry &entry : m_entries.shown())
        apps.push_back(infoOf(entry));
    return apps;
}

std::vector<AppInfo> X11AppControl::running()
{
    const AppMatcher matcher(m_entries.all());
    std::vector<AppInfo> apps;
    for (const X11Window &window : managedWindows(m_connection)) {
        const DesktopEntry *entry = matcher.match(identityOf(window));
        AppInfo app = entry ? infoOf(*entry) : infoOf(window);
        app.pid = window.pid;
        app.ours = window.pid == QCoreApplication::applicationPid();
        app.policy = AppPolicy::accessory;
        const auto known =
            std::ranges::find_if(apps, [&](const AppInfo &other) { return sameApp(other, app); });
        AppInfo &target = known == apps.end() ? apps.emplace_back(std::move(app)) : *known;
        target.windows << window.id;
        // One window that a user switches to makes it an ordinary application.
        if (window.ordinary)
            target.policy = AppPolicy::regular;
    }
    return apps;
}

QImage X11AppControl::icon(const AppInfo &app, qreal scale)
{
    QImage themed = themeIcon(app.iconName, m_folders.data, scale);
    if (!themed.isNull())
        return themed;
    for (const quint64 window : app.windows) {
        const QImage own =
            windowIcon(m_connection, static_cast<xcb_window_t>(window), qRound(16 * scale));
        if (!own.isNull())
            return asIcon(own, scale);
    }
    return {};
}

// Those that the application has now, the lowest first: it may have opened and closed some since
// it was listed.
std::vector<X11Window> X11AppControl::windowsNow(const AppInfo &app)
{
    const std::vector<AppInfo> apps = running();
    const auto found =
        std::ranges::find_if(apps, [&](const AppInfo &other) { return sameApp(other, app); });
    if (found == apps.end())
        return {};
    std::vector<X11Window> windows = m_manager.stacked();
    std::erase_if(windows,
                  [&](const X11Window &window) { return !found->windows.contains(window.id); });
    return windows;
}

void X11AppControl::activate(const AppInfo &app)
{
    if (missing().isEmpty())
        m_manager.raise(windowsNow(app));
}

void X11AppControl::hide(const AppInfo &app)
{
    if (!missing().isEmpty())
        return;
    X11WindowManager::Windows shown;
    for (const X11Window &window : windowsNow(app)) {
        if (!window.hidden)
            shown.push_back(window.id);
    }
    m_manager.minimize(shown);
}

void X11AppControl::launch(const AppInfo &app)
{
    const std::shared_ptr<const DesktopEntries::List> entries = m_entries.all();
    const auto found = std::ranges::find_if(*entries, [&](const DesktopEntry &entry) {
        return entry.id == app.id && entry.path == app.desktopFile;
    });
    if (m_connection.isOpen() && found != entries->end())
        m_launcher.launch(*found);
}

Token X11AppControl::watchActivations(std::function<void(const AppInfo &)> activated)
{
    return X11Activations::watch(*this, m_display, std::move(activated));
}

} // namespace velvane
