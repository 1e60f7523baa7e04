#pragma once

#include "live/Pace.h"

namespace velvane::Live {

/// A way of the cursor: points relative to the primary display's top left.
struct Path {
    QPointF from;
    QPointF to;
    /// How many intervals it is made of; at least 1.
    qint64 count = 1;

    /// The eased point after `k` intervals.
    QPointF at(qint64 k) const;
};

/// The updates a second with which the cursor travels in a demo of this frame rate.
int travelRate(int fps);

/// Moves the cursor along the path, as a drag of the left button when `held`: a point, an interval,
/// a point, …, the last point and its interval. The end of the run stops it between two points.
/// Worker only.
void travel(InputSynthesizer &input, const Path &path, Seconds interval, bool held, Pace &pace);

} // namespace velvane::Live
