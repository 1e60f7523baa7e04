#include "platform/x11/X11InputSynthesizer.h"
#include "platform/x11/X11RootSpace.h"

#include "support/Print.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

X11RootSpace oneDisplay()
{
    return X11RootSpace({{"one", {0, 0, 1920, 1080}, true}});
}

// The primary stands right of a smaller one and lower.
X11RootSpace twoDisplays()
{
    return X11RootSpace(
        {{"left", {0, 0, 1000, 600}, false}, {"right", {1000, 200, 1600, 900}, true}});
}

} // namespace

TEST(X11RootSpace, PointsAreRelativeToThePrimaryDisplay)
{
    EXPECT_EQ(twoDisplays().pixel({0, 0}), QPoint(1000, 200));
    EXPECT_EQ(twoDisplays().pixel({-1000, -200}), QPoint(0, 0));
    EXPECT_EQ(twoDisplays().point(QPoint(1005, 210)), QPointF(5, 10));
}

TEST(X11RootSpace, APointIsRoundedToAPixel)
{
    EXPECT_EQ(oneDisplay().pixel({10.4, 10.6}), QPoint(10, 11));
}

TEST(X11RootSpace, WhatLiesOutsideEndsAtTheNearestEdge)
{
    EXPECT_EQ(oneDisplay().pixel({-50, 5000}), QPoint(0, 1079));
    EXPECT_EQ(oneDisplay().pixel({1e300, -1e300}), QPoint(1919, 0));
    EXPECT_EQ(oneDisplay().pixel({1920, 1080}), QPoint(1919, 1079));
}

TEST(X11RootSpace, BetweenDisplaysTheNearerOneCounts)
{
    EXPECT_EQ(twoDisplays().pixel({-20, 450}), QPoint(1000, 650)) << "20 to the right, 51 up";
    EXPECT_EQ(twoDisplays().pixel({-500, 410}), QPoint(500, 599));
}

TEST(X11RootSpace, PointsThatAreNotFiniteHaveNoPixel)
{
    EXPECT_FALSE(oneDisplay().pixel({std::numeric_limits<double>::quiet_NaN(), 0}));
    EXPECT_FALSE(oneDisplay().pixel({0, -std::numeric_limits<double>::infinity()}));
    EXPECT_FALSE(X11RootSpace().pixel({0, 0})) << "there is no display";
}

TEST(HeldInput, KeepsABitForEachKeyCode)
{
    HeldInput held;
    HeldInput::set(held.pressed, 255, true);
    HeldInput::set(held.pressed, 8, true);
    EXPECT_TRUE(HeldInput::has(held.pressed, 255));
    EXPECT_TRUE(HeldInput::has(held.pressed, 8));
    EXPECT_FALSE(HeldInput::has(held.pressed, 9));
    HeldInput::set(held.pressed, 255, false);
    HeldInput::set(held.pressed, 8, false);
    EXPECT_EQ(held, HeldInput());
}

TEST(X11InputSynthesizer, SaysWhyNothingCanBePosted)
{
    const auto reason = &X11InputSynthesizer::explain;
    EXPECT_EQ(reason(true, false, true, true), "");
    EXPECT_EQ(reason(false, true, false, false), "There is no display.");
    EXPECT_EQ(reason(true, true, true, true),
              "In a Wayland session only programs that use X11 could be driven: "
              "log in with an X11 session instead.");
    EXPECT_TRUE(reason(true, false, false, true).contains("XTEST"));
    EXPECT_TRUE(reason(true, false, true, false).contains("velvane-watchdog"));
}

} // namespace velvane
