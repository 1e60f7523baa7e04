#include "capture/StopRequest.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(StopRequest, EscapeMakesItWhileItIsWatched)
{
    SimulatedDesktop desktop;
    StopRequest stop(desktop);
    desktop.press(KeyCode::escape);
    EXPECT_FALSE(stop.isMade());
    EXPECT_TRUE(stop.watchEscape());
    desktop.press(KeyCode::returnKey);
    EXPECT_FALSE(stop.isMade());
    desktop.press(KeyCode::escape);
    EXPECT_TRUE(stop.isMade());
    stop.clear();
    stop.stopWatching();
    desktop.press(KeyCode::escape);
    EXPECT_FALSE(stop.isMade());
    EXPECT_EQ(desktop.keys().watches(), 0);
}

TEST(StopRequest, ASystemThatHidesEscapeSaysSo)
{
    SimulatedDesktop desktop;
    desktop.keys().setMissing("No keys here.");
    EXPECT_FALSE(StopRequest(desktop).watchEscape());
}

TEST(StopRequest, ARestTakesItsTimeUnlessTheRequestEndsIt)
{
    SimulatedDesktop desktop;
    StopRequest stop(desktop);
    runToEnd(stop.rest(0.75s));
    EXPECT_NEAR(desktop.clock().now().count(), 0.75, 1e-9);
    desktop.clock().at(2s, [&] { stop.make(); });
    runToEnd(stop.rest(60s));
    EXPECT_NEAR(desktop.clock().now().count(), 2.05, 0.1);
    runToEnd(stop.rest(60s));
    EXPECT_NEAR(desktop.clock().now().count(), 2.05, 0.1);
}

TEST(StopRequest, ACountdownShowsThreeNumbersOrEndsEarly)
{
    SimulatedDesktop desktop;
    StopRequest stop(desktop);
    QList<int> shown;
    const auto show = [&](int number) { shown << number; };
    runToEnd(stop.countDown(0.7s, show));
    EXPECT_EQ(shown, QList<int>({3, 2, 1}));
    EXPECT_NEAR(desktop.clock().now().count(), 2.1, 1e-9);
    shown.clear();
    desktop.clock().at(3s, [&] { stop.make(); });
    runToEnd(stop.countDown(0.7s, show));
    EXPECT_EQ(shown, QList<int>({3, 2}));
}

} // namespace velvane
