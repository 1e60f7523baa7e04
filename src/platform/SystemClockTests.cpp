#include "platform/SystemClock.h"
#include "support/contracts/ClockContract.h"

#include <thread>

namespace velvane {

namespace {

class SystemStage {
public:
    ~SystemStage()
    {
        if (m_waker.joinable())
            m_waker.join();
    }

    Clock &clock() { return m_clock; }

    void whenItSleeps(const std::atomic<bool> &asked, std::function<void()> call)
    {
        m_waker = std::thread([&asked, call = std::move(call)] {
            while (!asked)
                std::this_thread::yield();
            call();
        });
    }

private:
    SystemClock m_clock;
    std::thread m_waker;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(System, ClockContract, SystemStage);

TEST(SystemClock, AnAbsurdlyLongSleepCanBeWoken)
{
    SystemClock clock;
    int asked = 0;
    const auto check = [&] { return ++asked == 1; };
    runToEnd(inBackground(
        [&] { clock.sleepUntil(Seconds(std::numeric_limits<double>::infinity()), check); }));
    EXPECT_EQ(asked, 1);
}

TEST(SystemClock, NeverGoesBack)
{
    const SystemClock clock;
    Seconds last = clock.now();
    for (int i = 0; i < 1000; ++i) {
        const Seconds next = clock.now();
        ASSERT_GE(next, last);
        last = next;
    }
}

} // namespace velvane
