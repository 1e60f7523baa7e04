#include "model/DocState.h"

#include "base/Geometry.h"

namespace velvane {

namespace {

// Lists that were never parted are equal without a look at their steps.
bool sameSteps(const QList<Step> &a, const QList<Step> &b)
{
    return a.size() == b.size() && (a.constData() == b.constData() || a == b);
}

} // namespace

bool DocState::operator==(const DocState &other) const
{
    return fps == other.fps && identical(startPoint, other.startPoint)
           && identical(canvasSize, other.canvasSize)
           && background.cacheKey() == other.background.cacheKey()
           && recordingBookmark == other.recordingBookmark && sameSteps(steps, other.steps);
}

} // namespace velvane
