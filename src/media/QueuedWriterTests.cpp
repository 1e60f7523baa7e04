#include "media/QueuedWriter.h"

#include "media/MovieError.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace velvane {

namespace {

constexpr auto limit = std::chrono::seconds(60);
constexpr auto glance = std::chrono::milliseconds(50);

// What a writer was given, and a gate that holds it up.
struct Log {
    std::promise<void> gate;
    std::shared_future<void> isOpen{gate.get_future()};
    std::vector<double> times;
    std::vector<QRgb> colors;
    int failAt = -1;
    std::atomic<int> finished = 0;
    std::atomic<int> begun = 0;
};

class SlowWriter final : public MovieWriter {
public:
    explicit SlowWriter(Log &log) : m_log(log) {}

    void append(const Frame &frame) override
    {
        ++m_log.begun;
        EXPECT_EQ(m_log.isOpen.wait_for(limit), std::future_status::ready) << "the gate";
        if (int(m_log.times.size()) == m_log.failAt)
            throw MovieError(MovieError::Cause::writing, QStringLiteral("full"));
        m_log.times.push_back(frame.time.count());
        m_log.colors.push_back(frame.image.pixel(0, 0));
    }
    void finish() override { ++m_log.finished; }

private:
    Log &m_log;
};

Frame frameAt(double time)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(QRgb(0xff000000 + int(time * 1000)));
    return {image, image.rect(), Seconds(time)};
}

class QueuedWriterTest : public testing::Test {
protected:
    void append(const std::vector<double> &times)
    {
        for (const double time : times)
            writer->append(frameAt(time));
    }
    /// The writer is at work on a frame.
    void waitUntilBusy(int frames = 1)
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        while (log.begun < frames && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        ASSERT_GE(log.begun, frames) << "the writer to begin";
    }
    QString failureOf(const std::function<void()> &work)
    {
        try {
            work();
        } catch (const MovieError &error) {
            return error.reason();
        }
        return {};
    }

    Log log;
    std::unique_ptr<QueuedWriter> writer =
        std::make_unique<QueuedWriter>(std::make_unique<SlowWriter>(log));
};

} // namespace

TEST_F(QueuedWriterTest, FramesAreTakenWhileTheWriterIsBusyAndComeInTheirOrder)
{
    append({0});
    waitUntilBusy();
    const std::vector<double> more{0.01, 0.02, 0.03, 0.04, 0.05, 0.06};
    append(more); // the gate is still closed
    EXPECT_TRUE(log.times.empty());
    log.gate.set_value();
    writer->finish();
    EXPECT_EQ(log.times, (std::vector<double>{0, 0.01, 0.02, 0.03, 0.04, 0.05, 0.06}));
    EXPECT_EQ(log.finished, 1);
}

TEST_F(QueuedWriterTest, WhatIsPaintedMeanwhileIsNotInAFrameThatWaits)
{
    append({0});
    waitUntilBusy();
    Frame frame = frameAt(0.05);
    writer->append(frame);
    frame.image.fill(Qt::white);
    log.gate.set_value();
    writer->finish();
    EXPECT_EQ(log.colors, (std::vector<QRgb>{0xff000000, 0xff000000 + 50}));
}

TEST_F(QueuedWriterTest, TheSeventhThatWouldWaitWaitsForRoom)
{
    append({0});
    waitUntilBusy();
    append({0.01, 0.02, 0.03, 0.04, 0.05, 0.06});
    const auto seventh = std::async(std::launch::async, [&] { append({0.07}); });
    EXPECT_EQ(seventh.wait_for(glance), std::future_status::timeout);
    log.gate.set_value();
    EXPECT_EQ(seventh.wait_for(limit), std::future_status::ready) << "room";
    writer->finish();
    EXPECT_EQ(log.times.size(), 8U);
}

TEST_F(QueuedWriterTest, NothingWaitsForLongerThanAQuarterOfASecond)
{
    append({0});
    waitUntilBusy();
    append({0.1});
    const auto late = std::async(std::launch::async, [&] { append({0.36}); });
    EXPECT_EQ(late.wait_for(glance), std::future_status::timeout);
    log.gate.set_value();
    EXPECT_EQ(late.wait_for(limit), std::future_status::ready) << "room";
    writer->finish();
    EXPECT_EQ(log.times, (std::vector<double>{0, 0.1, 0.36}));
}

TEST_F(QueuedWriterTest, AFailureComesOutOfTheNextCallsAndOfTheLast)
{
    log.failAt = 1;
    log.gate.set_value();
    QString failure;
    for (int i = 0; i < 20 && failure.isEmpty(); ++i)
        failure = failureOf([&] { append({i * 0.3}); });
    EXPECT_EQ(failure, "full");
    EXPECT_EQ(failureOf([&] { append({9}); }), "full");
    EXPECT_EQ(failureOf([&] { writer->finish(); }), "full");
    EXPECT_EQ(log.finished, 1) << "what was written before is completed";
    EXPECT_EQ(log.times.size(), 1U);
}

TEST_F(QueuedWriterTest, FinishTellsOfAFailureThatNoCallHasSeen)
{
    log.failAt = 0;
    append({0});
    log.gate.set_value();
    EXPECT_EQ(failureOf([&] { writer->finish(); }), "full");
}

TEST_F(QueuedWriterTest, FinishedTwiceIsFinishedOnce)
{
    log.gate.set_value();
    append({0});
    writer->finish();
    writer->finish();
    EXPECT_EQ(log.finished, 1);
}

TEST_F(QueuedWriterTest, DestroyedItHandsOnWhatWaits)
{
    append({0, 0.1});
    log.gate.set_value();
    writer.reset();
    EXPECT_EQ(log.times, (std::vector<double>{0, 0.1}));
}

} // namespace velvane
