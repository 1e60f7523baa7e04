#include "base/Background.h"
#include "support/RunToEnd.h"

#include <QThread>

#include <gtest/gtest.h>

#include <latch>
#include <stdexcept>

namespace velvane {

namespace {

struct Refusal : std::runtime_error {
    using runtime_error::runtime_error;
    int code = 7;
};

} // namespace

TEST(Background, WorkRunsOnAnotherThreadAndTheTaskWaitsForIt)
{
    QThread *worker = nullptr;
    runToEnd(inBackground([&] { worker = QThread::currentThread(); }));
    EXPECT_NE(worker, nullptr);
    EXPECT_NE(worker, QThread::currentThread());
}

TEST(Background, WorkBeginsHoweverMuchIsUnderWay)
{
    const int works = 2 * QThread::idealThreadCount() + 1;
    std::latch all(works);
    std::vector<QCoro::Task<>> tasks;
    for (int i = 0; i < works; ++i)
        tasks.push_back(inBackground([&all] { all.arrive_and_wait(); }));
    for (QCoro::Task<> &task : tasks)
        runToEnd(std::move(task));
    EXPECT_TRUE(all.try_wait());
}

TEST(Background, AnExceptionComesHomeWithItsType)
{
    try {
        runToEnd(inBackground([] { throw Refusal("no"); }));
        FAIL() << "nothing was thrown";
    } catch (const Refusal &refusal) {
        EXPECT_STREQ(refusal.what(), "no");
        EXPECT_EQ(refusal.code, 7);
    }
}

TEST(Background, CallsForTheMainThreadKeepTheirOrder)
{
    std::vector<int> seen;
    runToEnd(inBackground([&] {
        for (int i = 0; i < 100; ++i)
            onMainThread([&seen, i] { seen.push_back(i); });
    }));
    QEventLoop loop;
    onMainThread([&] { loop.quit(); });
    loop.exec();
    ASSERT_EQ(seen.size(), 100U);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
}

TEST(Background, ItIsBusyUntilTheTaskHasEnded)
{
    EXPECT_FALSE(isBackgroundBusy());
    std::latch mayEnd(1);
    QCoro::Task<> task = inBackground([&] { mayEnd.wait(); });
    EXPECT_TRUE(isBackgroundBusy());
    mayEnd.count_down();
    runToEnd(std::move(task));
    EXPECT_FALSE(isBackgroundBusy());
}

} // namespace velvane
