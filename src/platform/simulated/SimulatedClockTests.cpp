#include "platform/simulated/SimulatedClock.h"
#include "support/contracts/ClockContract.h"

#include <QStringList>

namespace velvane {

namespace {

class SimulatedStage {
public:
    Clock &clock() { return m_clock; }

    void whenItSleeps(const std::atomic<bool> &, std::function<void()> call)
    {
        m_clock.at(1s, std::move(call));
    }

private:
    SimulatedClock m_clock;
};

QCoro::Task<> note(SimulatedClock &clock, Seconds pause, int times, QStringList &notes,
                   QString name)
{
    for (int i = 0; i < times; ++i) {
        co_await clock.delay(pause);
        notes << name + QString::number(clock.now().count());
    }
}

QCoro::Task<> both(SimulatedClock &clock, QStringList &notes)
{
    auto slow = note(clock, 1s, 2, notes, "slow ");
    auto quick = note(clock, Seconds(0.75), 2, notes, "quick ");
    co_await slow;
    co_await quick;
}

QCoro::Task<> pollUntil(SimulatedClock &clock, const bool &flag)
{
    while (!flag)
        co_await clock.delay(0.15s);
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ClockContract, SimulatedStage);

TEST(SimulatedClock, StandsStillUntilSomebodyWaits)
{
    SimulatedClock clock;
    EXPECT_EQ(clock.now(), 0s);
    EXPECT_EQ(clock.now(), 0s);
}

TEST(SimulatedClock, ASleepTakesExactlyItsTime)
{
    SimulatedClock clock;
    clock.sleep(0.25s);
    clock.sleep(1.5s);
    EXPECT_EQ(clock.now(), 1.75s);
}

TEST(SimulatedClock, MakesCallsAtTheirTimesInOrder)
{
    SimulatedClock clock;
    QStringList seen;
    const auto see = [&](const char *name) {
        return [&seen, &clock, name] { seen << name + QString::number(clock.now().count()); };
    };
    clock.at(2s, see("late "));
    clock.at(1s, see("first "));
    clock.at(1s, see("second "));
    clock.advance(1.5s);
    EXPECT_EQ(seen, QStringList({"first 1", "second 1"}));
    EXPECT_EQ(clock.now(), 1.5s);
    clock.advance(1s);
    EXPECT_EQ(seen.last(), "late 2");
}

TEST(SimulatedClock, ACallMayAskForAnother)
{
    SimulatedClock clock;
    Seconds seen(0);
    clock.at(1s, [&] { clock.at(1.5s, [&] { seen = clock.now(); }); });
    clock.sleep(2s);
    EXPECT_EQ(seen, 1.5s);
}

TEST(SimulatedClock, CoroutinesThatWaitSideBySideInterleave)
{
    SimulatedClock clock;
    QStringList notes;
    runToEnd(both(clock, notes));
    EXPECT_EQ(notes, QStringList({"quick 0.75", "slow 1", "quick 1.5", "slow 2"}));
    EXPECT_TRUE(clock.idle());
}

TEST(SimulatedClock, WhatACallQueuesIsDoneBeforeTimeGoesOn)
{
    SimulatedClock clock;
    bool flag = false;
    clock.at(0.4s, [&] { onMainThread([&] { onMainThread([&] { flag = true; }); }); });
    runToEnd(pollUntil(clock, flag));
    EXPECT_DOUBLE_EQ(clock.now().count(), 0.45);
}

TEST(SimulatedClock, AWokenSleeperStopsAtTheMomentItWasWoken)
{
    SimulatedClock clock;
    bool cancelled = false;
    clock.at(0.7s, [&] {
        cancelled = true;
        clock.wake();
    });
    clock.sleep(5s, [&] { return cancelled; });
    EXPECT_EQ(clock.now(), Seconds(0.7));
}

TEST(SimulatedClock, AnUnreachedCallStaysPending)
{
    SimulatedClock clock;
    clock.at(9s, [] {});
    runToEnd(clock.delay(1s));
    EXPECT_EQ(clock.now(), 1s);
    EXPECT_FALSE(clock.idle());
}

} // namespace velvane
