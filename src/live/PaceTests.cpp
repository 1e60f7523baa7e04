#include "live/Pace.h"

#include "platform/simulated/SimulatedDesktop.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

class LivePace : public testing::Test {
protected:
    double now() { return desktop.clock().now().count(); }

    SimulatedDesktop desktop;
    bool cancelled = false;
    Live::Pace pace{desktop, [this] { return cancelled; }};
};

} // namespace

TEST_F(LivePace, WorkBetweenWaitsDoesNotDelayTheNext)
{
    pace.sleep(0.5s);
    desktop.clock().advance(0.2s);
    pace.sleep(0.5s);
    EXPECT_DOUBLE_EQ(now(), 1.0);
}

TEST_F(LivePace, AWaitThatWasMissedWhollyBeginsAnew)
{
    pace.sleep(0.1s);
    desktop.clock().advance(0.5s);
    pace.sleep(0.1s);
    EXPECT_DOUBLE_EQ(now(), 0.7);
    pace.sleep(0.1s);
    EXPECT_DOUBLE_EQ(now(), 0.8);
}

TEST_F(LivePace, RestartedItsNextWaitIsAWholeOneAndThoseAfterFollowIt)
{
    pace.sleep(0.5s);
    desktop.clock().advance(0.25s);
    pace.restart();
    pace.sleep(0.5s);
    EXPECT_DOUBLE_EQ(now(), 1.25);
    desktop.clock().advance(0.25s);
    pace.sleep(0.5s);
    EXPECT_DOUBLE_EQ(now(), 1.75);
}

TEST_F(LivePace, NegativeDurationsAndNaNTakeNoTime)
{
    pace.sleep(-3s);
    pace.sleep(Seconds(std::numeric_limits<double>::quiet_NaN()));
    pace.sleep(-Seconds(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(now(), 0);
}

TEST_F(LivePace, CancellingEndsAnEndlessWait)
{
    desktop.clock().at(5s, [this] { cancelled = true; });
    pace.sleep(Seconds(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(now(), 5);
    EXPECT_TRUE(pace.isOver());
}

TEST_F(LivePace, ADisplayThatGoesAwayEndsTheWaitWithinASecond)
{
    desktop.clock().at(5.25s, [this] { desktop.screens().setDisplays({}); });
    pace.sleep(1000s);
    EXPECT_GE(now(), 5.25);
    EXPECT_LE(now(), 6.25);
    EXPECT_TRUE(pace.isOver());
}

} // namespace velvane
