#include "base/Background.h"
#include "render/ProgressRelay.h"
#include "support/RunToEnd.h"

#include <QThread>

#include <gtest/gtest.h>

#include <atomic>

namespace velvane {

namespace {

bool never()
{
    return false;
}

} // namespace

TEST(ProgressRelay, EveryValueArrivesInOrderOnTheMainThread)
{
    std::vector<double> seen;
    bool elsewhere = false;
    const auto relay = std::make_shared<ProgressRelay>([&](double value) {
        seen.push_back(value);
        elsewhere = elsewhere || QThread::currentThread() != qApp->thread();
    });
    runToEnd(inBackground([&] {
        for (int i = 0; i < 1000; ++i)
            EXPECT_TRUE(relay->send(i, never));
        EXPECT_TRUE(relay->drain(never));
    }));
    ASSERT_EQ(seen.size(), 1000U);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_FALSE(elsewhere);
}

TEST(ProgressRelay, TheWorkerWaitsWhenTheMainThreadIsSlow)
{
    std::atomic<int> sent = 0;
    int arrived = 0;
    int mostAhead = 0;
    const auto relay = std::make_shared<ProgressRelay>([&](double) {
        mostAhead = std::max(mostAhead, sent - arrived);
        ++arrived;
    });
    runToEnd(inBackground([&] {
        for (int i = 0; i < 500; ++i) {
            relay->send(i, never);
            ++sent;
        }
        relay->drain(never);
    }));
    EXPECT_EQ(arrived, 500);
    EXPECT_LE(mostAhead, 65);
}

TEST(ProgressRelay, AWaitingWorkerGivesUpWhenCancelled)
{
    const auto relay = std::make_shared<ProgressRelay>([](double) {});
    // On the main thread nothing is delivered while it waits here.
    int sent = 0;
    while (relay->send(0, [] { return true; }))
        ++sent;
    EXPECT_EQ(sent, 64);
    EXPECT_FALSE(relay->drain([] { return true; }));
}

TEST(ProgressRelay, NothingArrivesOnceClosed)
{
    int arrived = 0;
    const auto relay = std::make_shared<ProgressRelay>([&](double) { ++arrived; });
    relay->send(0.5, never);
    relay->close();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(arrived, 0);
}

} // namespace velvane
