#include "base/Geometry.h"

#include <cmath>
#include <limits>

namespace velvane {

bool identical(QPointF a, QPointF b)
{
    return a.x() == b.x() && a.y() == b.y();
}

bool identical(QSizeF a, QSizeF b)
{
    return a.width() == b.width() && a.height() == b.height();
}

qint64 truncated(double value)
{
    // 2^63 is the first double past the range; its negative is the last one inside.
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<qint64>::max();
    if (value < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(value);
}

QRect evenAligned(const QRect &rect)
{
    const int left = rect.left() & ~1;
    const int top = rect.top() & ~1;
    const int right = (rect.right() + 2) & ~1;
    const int bottom = (rect.bottom() + 2) & ~1;
    return {left, top, right - left, bottom - top};
}

} // namespace velvane
