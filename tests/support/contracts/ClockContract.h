#pragma once

#include "base/Background.h"
#include "platform/Clock.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>

namespace velvane {

/// What every Clock keeps. A stage gives `Clock &clock()`.
template <typename Stage>
class ClockContract : public testing::Test {
protected:
    Clock &clock() { return stage.clock(); }

    // How long a task takes by the clock itself.
    Seconds spent(QCoro::Task<> task)
    {
        runToEnd(std::move(task));
        return clock().now() - start;
    }

    Stage stage;
    const Seconds start = stage.clock().now();
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, ADelayLastsAtLeastAsLongAsAsked)
{
    EXPECT_GE(this->spent(this->clock().delay(0.02s)), 0.02s);
}

TYPED_TEST_P(ClockContract, ADelayOfNothingLetsTheEventLoopTurn)
{
    bool turned = false;
    onMainThread([&] { turned = true; });
    runToEnd(this->clock().delay(0s));
    EXPECT_TRUE(turned);
}

TYPED_TEST_P(ClockContract, NegativeAndMeaninglessDelaysEndAtOnce)
{
    const Seconds nothing(std::numeric_limits<double>::quiet_NaN());
    EXPECT_LT(this->spent(this->clock().delay(Seconds(-5))), 1s);
    EXPECT_LT(this->spent(this->clock().delay(nothing)), 1s);
}

TYPED_TEST_P(ClockContract, AWorkerSleepsUntilItsDeadline)
{
    Clock &clock = this->clock();
    const Seconds deadline = this->start + 0.02s;
    EXPECT_GE(this->spent(inBackground([&] { clock.sleepUntil(deadline); })), 0.02s);
}

TYPED_TEST_P(ClockContract, ASleepOfNothingOrLessEndsAtOnce)
{
    Clock &clock = this->clock();
    const Seconds nothing(std::numeric_limits<double>::quiet_NaN());
    EXPECT_LT(this->spent(inBackground([&] {
        clock.sleep(0s);
        clock.sleep(Seconds(-3));
        clock.sleep(nothing);
        clock.sleepUntil(nothing);
        clock.sleepUntil(this->start - 3s);
    })),
              1s);
}

TYPED_TEST_P(ClockContract, ASleeperThatShouldWakeDoesNotSleep)
{
    Clock &clock = this->clock();
    EXPECT_LT(this->spent(inBackground([&] { clock.sleep(3600s, [] { return true; }); })), 60s);
}

TYPED_TEST_P(ClockContract, WakingALongSleepEndsIt)
{
    Clock &clock = this->clock();
    std::atomic<bool> asked = false;
    std::atomic<bool> cancelled = false;
    const auto check = [&] {
        asked = true;
        return cancelled.load();
    };
    this->stage.whenItSleeps(asked, [&] {
        cancelled = true;
        clock.wake();
    });
    EXPECT_LT(this->spent(inBackground([&] { clock.sleep(3600s, check); })), 60s);
}

REGISTER_TYPED_TEST_SUITE_P(ClockContract, ADelayLastsAtLeastAsLongAsAsked,
                            ADelayOfNothingLetsTheEventLoopTurn,
                            NegativeAndMeaninglessDelaysEndAtOnce, AWorkerSleepsUntilItsDeadline,
                            ASleepOfNothingOrLessEndsAtOnce, ASleeperThatShouldWakeDoesNotSleep,
                            WakingALongSleepEndsIt);

} // namespace velvane
