#include "platform/x11/X11Screens.h"

#include <algorithm>

namespace velvane {

QPoint originOf(const std::vector<X11Monitor> &monitors)
{
    const auto primary = std::ranges::find_if(monitors, &X11Monitor::primary);
    if (primary != monitors.end())
        return primary->frame.topLeft();
    return monitors.empty() ? QPoint() : monitors.front().frame.topLeft();
}

std::vector<Display> displaysOf(std::vector<X11Monitor> monitors, const QRect &workArea)
{
    const auto primary = std::ranges::find_if(monitors, &X11Monitor::primary);
    if (primary != monitors.end())
        std::rotate(monitors.begin(), primary, primary + 1);
    const QPoint origin = originOf(monitors);
    std::vector<Display> displays;
    for (const X11Monitor &monitor : monitors) {
        const QRect free = monitor.frame & workArea;
        Display display;
        display.name = monitor.name;
        display.frame = monitor.frame.translated(-origin);
        display.visible = (free.isEmpty() ? monitor.frame : free).translated(-origin);
        display.primary = displays.empty();
        displays.push_back(display);
    }
    return displays;
}

} // namespace velvane
