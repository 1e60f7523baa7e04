#include "platform/x11/X11WindowControl.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

// Beyond this X has no places.
constexpr double farthest = 32'000;

const AppInfo *ownerOf(const std::vector<AppInfo> &apps, quint64 window)
{
    const auto found = std::ranges::find_if(
        apps, [&](const AppInfo &app) { return app.windows.contains(window); });
    return found == apps.end() ? nullptr : &*found;
}

// An application would give the keyboard to the window that has it, else to its topmost one on the
// screen that a user switches to, else to the topmost one of that kind. Frontmost first.
std::optional<std::size_t> mainOf(const std::vector<X11Window> &windows, const AppInfo &app,
                                  xcb_window_t active)
{
    std::optional<std::size_t> best;
    int bestRank = 0;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const X11Window &window = windows[i];
        if (!app.windows.contains(window.id))
            continue;
        const int rank = window.id == active ? 3 : !window.ordinary ? 0 : window.onScreen ? 2 : 1;
        if (rank > bestRank) {
            best = i;
            bestRank = rank;
        }
    }
    return best;
}

} // namespace

X11WindowControl::X11WindowControl(const X11Connection &connection, const X11WindowManager &manager,
                                   const X11Screens &screens, AppControl &apps)
    : m_connection(connection)
    , m_manager(manager)
    , m_screens(screens)
    , m_apps(apps)
{}

std::vector<WindowInfo> X11WindowControl::windows()
{
    if (!missing().isEmpty())
        return {};
    const std::vector<AppInfo> apps = m_apps.running();
    std::vector<X11Window> stacked = m_manager.stacked();
    std::erase_if(stacked, [&](const X11Window &window) {
        return window.frame.isEmpty() || !ownerOf(apps, window.id);
    });
    std::ranges::reverse(stacked);
    const QPoint origin = m_screens.origin();
    std::vector<WindowInfo> windows;
    for (const X11Window &window : stacked)
        windows.push_back({window.id, *ownerOf(apps, window.id), window.title,
                           QRectF(window.frame.translated(-origin)), window.onScreen});
    const xcb_window_t active = m_manager.activeWindow();
    for (const AppInfo &app : apps) {
        if (const std::optional<std::size_t> main = mainOf(stacked, app, active))
            windows[*main].main = true;
    }
    return windows;
}

void X11WindowControl::moveWindow(quint64 id, QPointF topLeft)
{
    if (!missing().isEmpty() || !std::isfinite(topLeft.x()) || !std::isfinite(topLeft.y()))
        return;
    const auto window = static_cast<xcb_window_t>(id);
    const auto place = [](double value) { return qRound(std::clamp(value, -farthest, farthest)); };
    // The window manager places what it counts as the frame, which includes a window's own shadow
    // and not what the window manager has drawn around it.
    const QPoint visible = QPoint(place(topLeft.x()), place(topLeft.y())) + m_screens.origin();
    m_manager.move(window, visible - shadowOf(m_connection, window));
}

} // namespace velvane
