#pragma once

#include "model/Step.h"

namespace velvane {

/// One timed segment of a demo.
struct ResolvedStep {
    Step step;
    Seconds start{0};
    /// Start of the next segment.
    Seconds end{0};
    /// Length of the action part; 0 for instantaneous kinds.
    Seconds actionDuration{0};
    /// Cursor position when the segment begins and ends, in canvas coordinates.
    QPointF startPos;
    QPointF endPos;
    /// Is the mouse button down when the segment begins?
    bool heldEntering = false;
};

} // namespace velvane
