#pragma once

#include "platform/x11/X11Screens.h"

#include <optional>
#include <vector>

namespace velvane {

/// Converts between points, relative to the primary display's top left, and root-window pixels.
class X11RootSpace {
public:
    X11RootSpace() = default;
    explicit X11RootSpace(const std::vector<X11Monitor> &monitors);

    /// The pixel of a point, rounded; the nearest pixel of any display for one outside them all.
    /// Nothing for a point that is not finite, or without displays.
    std::optional<QPoint> pixel(QPointF point) const;

    QPointF point(QPoint pixel) const { return QPointF(pixel - m_origin); }

private:
    QPoint m_origin;
    /// In root-window pixels.
    std::vector<QRect> m_displays;
};

} // namespace velvane
