#include "capture/ScreenStream.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

// On a desktop whose list of running applications has not got ours yet.
namespace velvane {

TEST(ScreenStreamUnlisted, BeforeTheSystemListsUsItWaitsOnceAndGoesOn)
{
    SimulatedDesktop unlisted;
    ScreenStream early(unlisted);
    runToEnd(early.start());
    EXPECT_EQ(unlisted.clock().now(), 0.2s);
    EXPECT_TRUE(early.isRunning());
}

TEST(ScreenStreamUnlisted, StoppedWhileItWaitsItDoesNotStart)
{
    SimulatedDesktop unlisted;
    ScreenStream early(unlisted);
    unlisted.clock().at(0.1s, [&] { early.stop(); });
    runToEnd(early.start());
    EXPECT_FALSE(early.isRunning());
    EXPECT_TRUE(unlisted.capture().requests().empty());
}

TEST(ScreenStreamUnlisted, StartedTwiceWhileItWaitsMakesOneStream)
{
    SimulatedDesktop unlisted;
    ScreenStream early(unlisted);
    const auto first = early.start();
    runToEnd(early.start());
    QCoreApplication::processEvents();
    EXPECT_EQ(unlisted.capture().requests().size(), 1U);
}

TEST(ScreenStreamUnlisted, DestroyedWhileItWaitsItDoesNothing)
{
    SimulatedDesktop unlisted;
    auto early = std::make_unique<ScreenStream>(unlisted);
    unlisted.clock().at(0.1s, [&] { early.reset(); });
    runToEnd(early->start());
    EXPECT_TRUE(unlisted.capture().requests().empty());
}

} // namespace velvane
