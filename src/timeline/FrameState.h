#pragma once

#include "base/Geometry.h"

#include <QString>

#include <optional>

namespace velvane {

/// What one instant shows.
struct FrameState {
    /// In canvas coordinates, origin top left.
    QPointF cursor;
    /// Progress of a click's ripple in [0, 1]; absent when none plays.
    std::optional<double> ripple = {};
    /// How far the button is visually pressed: 0 up, 1 down.
    double press = 0;
    bool held = false;
    std::optional<QString> caption = {};

    bool operator==(const FrameState &other) const
    {
        return identical(cursor, other.cursor) && ripple == other.ripple && press == other.press
               && held == other.held && caption == other.caption;
    }
};

} // namespace velvane
