#include "live/Travel.h"

#include "base/Easing.h"

#include <algorithm>

namespace velvane::Live {

namespace {

// Coarser than this a cursor visibly hops.
constexpr int lowestRate = 30;

} // namespace

QPointF Path::at(qint64 k) const
{
    const double time = std::clamp(static_cast<double>(k) / static_cast<double>(count), 0.0, 1.0);
    return from + (to - from) * easeInOut(time);
}

int travelRate(int fps)
{
    return std::max(fps, lowestRate);
}

void travel(InputSynthesizer &input, const Path &path, Seconds interval, bool held, Pace &pace)
{
    for (qint64 k = 0; k <= path.count; ++k) {
        if (k > 0 && pace.isOver())
            return;
        input.moveTo(path.at(k), held);
        pace.sleep(interval);
    }
}

} // namespace velvane::Live
