#include "base/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

TEST(Geometry, CoordinatesCompareExactly)
{
    const QPointF a(0.1 + 0.2, 5);
    const QPointF b(0.3, 5);
    EXPECT_TRUE(a == b) << "Qt forgives the last bit";
    EXPECT_FALSE(identical(a, b));
    EXPECT_TRUE(identical(a, a));
    EXPECT_FALSE(identical(QSizeF(1, 2), QSizeF(1, 2 + 1e-15)));
}

TEST(Geometry, TruncatesTowardsZeroAndNeverOverflows)
{
    EXPECT_EQ(truncated(12.9), 12);
    EXPECT_EQ(truncated(-3.7), -3);
    EXPECT_EQ(truncated(1e300), std::numeric_limits<qint64>::max());
    EXPECT_EQ(truncated(-1e300), std::numeric_limits<qint64>::min());
    EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Geometry, EvenAlignedCoversTheRectangleWithEvenEdges)
{
    EXPECT_EQ(evenAligned(QRect(1, 1, 1, 1)), QRect(0, 0, 2, 2));
    EXPECT_EQ(evenAligned(QRect(2, 4, 6, 8)), QRect(2, 4, 6, 8));
    EXPECT_EQ(evenAligned(QRect(3, 2, 2, 3)), QRect(2, 2, 4, 4));
}

} // namespace velvane
