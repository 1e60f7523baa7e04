#pragma once

#include "platform/Facility.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace velvane {

/// One display. Rectangles are in points, relative to the primary display's top left.
struct Display {
    QString name;
    QRectF frame;
    /// The frame less panels and docks.
    QRectF visible;
    /// The display whose frame begins at (0, 0). Exactly one of the list is.
    bool primary = false;
    /// Pixels of a captured picture per point.
    qreal scale = 1;
};

/// The displays and the pointer. Any thread; every answer is fresh.
class Screens : public Facility {
public:
    /// The displays, the primary first; empty when there is none.
    virtual std::vector<Display> displays() = 0;

    /// The display with the window that has the keyboard, else the primary.
    virtual std::optional<Display> mainDisplay() = 0;

    /// Where the pointer is; negative left of or above the primary display. Nothing without a
    /// display.
    virtual std::optional<QPointF> pointer() = 0;

    /// The primary display.
    std::optional<Display> primaryDisplay()
    {
        const std::vector<Display> all = displays();
        return all.empty() ? std::nullopt : std::optional(all.front());
    }
};

} // namespace velvane
