#include "timeline/Ticker.h"

#include "support/Print.h"
#include "support/Until.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct TickerTest : testing::Test {
    TickerTest()
    {
        QObject::connect(&ticker, &Ticker::ticked, &ticker, [this] { ++ticks; });
    }

    Ticker ticker;
    int ticks = 0;
};

} // namespace

TEST(TickerDeadlines, OneFollowsTheOther)
{
    EXPECT_EQ(Ticker::next(8s, 0.25s, 8s), 8.25s);
    EXPECT_EQ(Ticker::next(8s, 0.25s, 8.125s), 8.25s);
    EXPECT_EQ(Ticker::next(8s, 0.25s, 8.25s), 8.25s);
}

TEST(TickerDeadlines, LateByLessThanAnIntervalNoneIsDropped)
{
    EXPECT_EQ(Ticker::next(8s, 0.25s, 8.375s), 8.25s);
}

TEST(TickerDeadlines, ThoseThatHavePassedAreDroppedAndTheRestStayOnTheGrid)
{
    const Seconds late = Ticker::next(8s, 0.25s, 10.125s);
    EXPECT_EQ(late, 10s);
    EXPECT_EQ(Ticker::next(late, 0.25s, 10.125s), 10.25s) << "only one is due at once";
}

TEST_F(TickerTest, ATickerThatWasNotStartedIsAtRest)
{
    EXPECT_FALSE(ticker.isRunning());
}

TEST_F(TickerTest, ItTicksAgainAndAgain)
{
    ticker.start(0.001s);
    EXPECT_EQ(ticks, 0) << "the first comes an interval later";
    until([this] { return ticks >= 3; });
    EXPECT_TRUE(ticker.isRunning());
}

TEST_F(TickerTest, StoppedByItsOwnTickItTicksNoMoreUntilItIsStarted)
{
    QObject::connect(&ticker, &Ticker::ticked, &ticker, &Ticker::stop);
    ticker.start(0.001s);
    until([this] { return ticks == 1; });
    EXPECT_FALSE(ticker.isRunning());
    ticker.start(0.001s);
    EXPECT_TRUE(ticker.isRunning());
    until([this] { return ticks == 2; });
    EXPECT_FALSE(ticker.isRunning());
}

TEST_F(TickerTest, StartingARunningOneReplacesItsInterval)
{
    ticker.start(3600s);
    ticker.start(0.001s);
    until([this] { return ticks >= 2; });
    ticker.start(3600s);
    const int before = ticks;
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, before);
    EXPECT_TRUE(ticker.isRunning());
}

TEST_F(TickerTest, AnIntervalOfNothingIsAMillisecond)
{
    ticker.start(0s);
    until([this] { return ticks >= 2; });
}

} // namespace velvane
