#include "platform/x11/X11RootSpace.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

// Points are bounded before they become numbers of pixels: these may be of any size.
QPoint nearestPixel(QPointF place, const QRect &display)
{
    const double x = std::clamp<double>(std::round(place.x()), display.left(), display.right());
    const double y = std::clamp<double>(std::round(place.y()), display.top(), display.bottom());
    return {int(x), int(y)};
}

double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

X11RootSpace::X11RootSpace(const std::vector<X11Monitor> &monitors) : m_origin(originOf(monitors))
{
    for (const X11Monitor &monitor : monitors)
        m_displays.push_back(monitor.frame);
}

std::optional<QPoint> X11RootSpace::pixel(QPointF point) const
{
    if (m_displays.empty() || !std::isfinite(point.x()) || !std::isfinite(point.y()))
        return {};
    const QPointF place = point + m_origin;
    std::vector<QPoint> nearest;
    for (const QRect &display : m_displays)
        nearest.push_back(nearestPixel(place, display));
    return *std::ranges::min_element(nearest, {},
                                     [&](QPoint pixel) { return distance(place, QPointF(pixel)); });
}

} // namespace velvane
