#include "base/Easing.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(Easing, StartsHalvesAndEndsExactly)
{
    EXPECT_EQ(easeInOut(0), 0);
    EXPECT_EQ(easeInOut(0.5), 0.5);
    EXPECT_EQ(easeInOut(1), 1);
}

TEST(Easing, IsCubicOnBothSides)
{
    EXPECT_DOUBLE_EQ(easeInOut(0.25), 0.0625);
    EXPECT_DOUBLE_EQ(easeInOut(0.75), 0.9375);
}

} // namespace velvane
