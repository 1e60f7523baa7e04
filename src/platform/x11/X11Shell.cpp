#include "platform/x11/X11Shell.h"

#include "base/Background.h"
#include "platform/freedesktop/Addresses.h"
#include "platform/freedesktop/FileManager.h"
#include "platform/freedesktop/RecentFiles.h"

#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <utility>

namespace velvane {

using namespace std::chrono_literals;

namespace {

// How often, and how many times, it is seen whether others keep the keyboard.
constexpr auto betweenLooks = 50ms;
constexpr int mostLooks = 20;

bool isOurs(const X11Window &window)
{
    return window.pid == QCoreApplication::applicationPid();
}

// Menus and tooltips are not the window manager's. Closing one may close others.
void closePopups()
{
    QList<QPointer<QWindow>> popups;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && (window->type() == Qt::Popup || window->type() == Qt::ToolTip))
            popups << window;
    }
    for (const QPointer<QWindow> &popup : popups) {
        if (popup)
            popup->close();
    }
}

} // namespace

X11Shell::X11Shell(const X11WindowManager &manager, AppControl &apps, X11Permissions &permissions)
    : m_manager(manager)
    , m_apps(apps)
    , m_permissions(permissions)
{}

// From the lowest to the topmost.
std::vector<X11Window> X11Shell::ours() const
{
    std::vector<X11Window> windows = m_manager.stacked();
    std::erase_if(windows, std::not_fn(isOurs));
    return windows;
}

// Whatever the window says: the window manager may not have come to it yet.
bool X11Shell::isHiddenByUs(const X11Window &window) const
{
    return std::ranges::count(m_hidden, window.id) > 0;
}

void X11Shell::noteComingBack()
{
    m_comingBack = std::exchange(m_hidden, {});
    m_askedBack = std::chrono::steady_clock::now();
}

// What is minimized a second later the user has minimized.
bool X11Shell::justAskedBack() const
{
    return std::chrono::steady_clock::now() - m_askedBack < 1s;
}

bool X11Shell::isComingBack(const X11Window &window) const
{
    return std::ranges::count(m_comingBack, window.id) > 0 && justAskedBack();
}

// The window manager keeps no order among minimized windows: those that we have hidden come back in
// the one they had, that in which the user worked last. Others come over them.
void X11Shell::putInOrder(std::vector<X11Window> &windows) const
{
    const auto &order = m_hidden.empty() && justAskedBack() ? m_comingBack : m_hidden;
    const auto rank = [&](const X11Window &window) {
        return std::ranges::find(order, window.id) - order.begin();
    };
    std::ranges::stable_sort(windows, {}, rank);
}

void X11Shell::hide()
{
    if (!missing().isEmpty())
        return;
    // A program on the command line may have no windows at all.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        onMainThread(closePopups);
    const std::lock_guard lock(m_mutex);
    X11WindowManager::Windows shown;
    for (const X11Window &window : ours()) {
        if ((!window.hidden || isComingBack(window)) && !isHiddenByUs(window))
            shown.push_back(window.id);
    }
    m_manager.minimize(shown);
    m_hidden.insert(m_hidden.end(), shown.begin(), shown.end());
}

// The window of another program that has the keyboard, or would have had it.
xcb_window_t X11Shell::keyboardOfOthers() const
{
    const xcb_window_t active = m_manager.activeWindow();
    xcb_window_t best = XCB_NONE;
    for (const X11Window &window : m_manager.stacked()) {
        if (isOurs(window) || !window.onScreen)
            continue;
        if (window.id == active)
            return active;
        if (window.ordinary)
            best = window.id;
    }
    return best;
}

void X11Shell::unhide()
{
    const std::lock_guard lock(m_mutex);
    if (m_hidden.empty())
        return;
    std::vector<X11Window> back = ours();
    std::erase_if(back, [&](const X11Window &window) { return !isHiddenByUs(window); });
    putInOrder(back);
    const xcb_window_t others = keyboardOfOthers();
    m_manager.restore(back, others);
    noteComingBack();
    m_keyboardIsOurs = false;
    if (others != XCB_NONE) {
        const auto look = [this, others] { keepKeyboardWith(others, mostLooks); };
        QMetaObject::invokeMethod(&m_pending, look, Qt::QueuedConnection);
    }
}

// Some window managers (xfwm4) give a window that comes back the keyboard late, after all that they
// were asked: then they are asked once more. Main thread.
void X11Shell::keepKeyboardWith(xcb_window_t other, int looks)
{
    const std::lock_guard lock(m_mutex);
    const xcb_window_t active = m_manager.activeWindow();
    // Something else has been wished since.
    if (m_keyboardIsOurs || !m_hidden.empty() || looks == 0)
        return;
    if (std::ranges::count(m_comingBack, active) > 0)
        return m_manager.giveKeyboard(other);
    const auto again = [this, other, looks] { keepKeyboardWith(other, looks - 1); };
    QTimer::singleShot(betweenLooks, &m_pending, again);
}

void X11Shell::activate()
{
    if (!missing().isEmpty())
        return;
    const std::lock_guard lock(m_mutex);
    std::vector<X11Window> windows = ours();
    for (X11Window &window : windows)
        window.hidden = window.hidden || isHiddenByUs(window);
    const auto stays = [&](const X11Window &window) {
        return window.hidden && !isHiddenByUs(window) && !isComingBack(window);
    };
    // When the user has minimized them all they are meant all.
    if (!std::ranges::all_of(windows, stays))
        std::erase_if(windows, stays);
    putInOrder(windows);
    m_manager.raise(windows);
    noteComingBack();
    m_keyboardIsOurs = true;
}

void X11Shell::bringForward(qint64 pid)
{
    for (const AppInfo &app : m_apps.running()) {
        if (app.pid == pid)
            m_apps.activate(app);
    }
}

bool X11Shell::reveal(const QString &file)
{
    return FileManager::reveal(file, m_pending, [this](qint64 pid) { bringForward(pid); });
}

bool X11Shell::open(const QUrl &address)
{
    const std::optional<Permission> page = settingsPage(address);
    if (!page)
        return Addresses::open(address);
    m_permissions.openSettings(*page);
    return true;
}

void X11Shell::noteRecent(const QString &file, const QString &type)
{
    inBackground([file, type] { RecentFiles::add(file, type, RecentFiles::standardList()); });
}

void X11Shell::forgetRecent()
{
    inBackground([] { RecentFiles::removeOurs(RecentFiles::standardList()); });
}

std::optional<Permission> X11Shell::settingsPage(const QUrl &address)
{
    if (address == QUrl(SettingsAddress::accessibility))
        return Permission::accessibility;
    if (address == QUrl(SettingsAddress::screenRecording))
        return Permission::screenRecording;
    return {};
}

} // namespace velvane
