#pragma once

#include <QtGlobal>

namespace velvane {

/// A field of the inspector that can have the keyboard focus.
struct Field {
    enum class Kind {
        pause,
        x,
        y,
        text,
        duration,
        // Of the demo, shown while no step is selected.
        canvasWidth,
        canvasHeight,
        fps,
        startX,
        startY,
    };

    Kind kind = Kind::text;
    /// Of a pause: which step's, by its index. The other step fields are the selected step's.
    qsizetype step = -1;

    bool operator==(const Field &) const = default;
};

} // namespace velvane
