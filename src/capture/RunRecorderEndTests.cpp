#include "capture/RunRecorderFixture.h"

#include <QFileInfo>

namespace velvane {

namespace {

// How the waiting for the movie is told that time has passed.
constexpr Seconds glance = 0.02s;

class RunRecorderEnd : public RunRecorderFixture {
protected:
    ~RunRecorderEnd() override
    {
        written.mayFinish.release();
        waitUntil([] { return !isBackgroundBusy(); });
    }

    /// Begins a movie of one picture, to complete which takes until a test lets it, and stops it.
    void stopSlowly()
    {
        written.finishWaits = true;
        start();
        showAt(0s, Qt::red);
        desktop.clock().advance(1s);
        m_stopped = desktop.clock().now();
        stopping = stopAndNote();
    }
    /// Lets time pass while the background is busy, which virtual time by itself waits for.
    void pass(Seconds duration)
    {
        const Seconds end = desktop.clock().now() + duration;
        while (desktop.clock().now() < end) {
            desktop.clock().advance(std::min(glance, end - desktop.clock().now()));
            QCoreApplication::processEvents();
        }
    }
    QCoro::Task<> stopAndNote()
    {
        co_await recorder.stop();
        returned.push_back(desktop.clock().now() - m_stopped);
    }

    std::vector<Seconds> returned;
    QCoro::Task<> stopping;

private:
    Seconds m_stopped{0};
};

} // namespace

TEST_F(RunRecorderEnd, StopWithoutAStartReturnsAtOnce)
{
    stop();
    EXPECT_EQ(desktop.clock().now(), 0s);
    EXPECT_EQ(recorder.url(), "");
}

TEST_F(RunRecorderEnd, AfterStopNothingComesAndThePathStays)
{
    const QString path = start();
    showAt(0s, Qt::red);
    desktop.clock().advance(1s);
    stop();
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(recorder.url(), path);
    EXPECT_EQ(desktop.capture().streams(), 0);
    stop();
    EXPECT_EQ(written.finished, 1);
    EXPECT_LE(desktop.clock().now(), 1.1s);
}

TEST_F(RunRecorderEnd, ARecordingWithoutAPictureLeavesNoMovie)
{
    RunRecorder real(desktop);
    const QString path = real.start(RecordScope::screen, {}, true, false);
    EXPECT_TRUE(QFileInfo::exists(path));
    runToEnd(real.stop());
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(real.url(), "");
}

TEST_F(RunRecorderEnd, AFailureToWriteEndsItAndIsToldOnce)
{
    const QString path = start();
    showAt(0s, Qt::red);
    desktop.clock().at(1s, [this] { written.failure = "No space left on device"; });
    showAt(1s, Qt::green);
    showAt(2s, Qt::blue);
    desktop.clock().advance(3s);
    QCoreApplication::processEvents();
    EXPECT_EQ(ended, QStringList("No space left on device"));
    EXPECT_EQ(written.frames.size(), 1U);
    EXPECT_EQ(written.finished, 1);
    stop();
    EXPECT_EQ(recorder.url(), path) << "what was written is kept";
    EXPECT_EQ(written.finished, 1);
    EXPECT_EQ(ended.size(), 1);
}

TEST_F(RunRecorderEnd, AFailureToCompleteItIsTold)
{
    start();
    showAt(0s, Qt::red);
    desktop.clock().advance(1s);
    written.failure = "No space left on device";
    stop();
    QCoreApplication::processEvents();
    EXPECT_EQ(ended, QStringList("No space left on device"));
}

TEST_F(RunRecorderEnd, AStreamThatTheSystemEndsCompletesTheMovie)
{
    const QString path = start();
    showAt(0s, Qt::red);
    desktop.clock().at(2s, [this] { desktop.capture().end("The X server has gone."); });
    desktop.clock().advance(5s);
    QCoreApplication::processEvents();
    EXPECT_EQ(ended, QStringList("The X server has gone."));
    EXPECT_EQ(written.finished, 1);
    EXPECT_NEAR(written.frames.back().time.count(), 2 - 1 / 60.0, 1e-9);
    stop();
    EXPECT_EQ(recorder.url(), path);
}

TEST_F(RunRecorderEnd, DestroyedWhileItRunsItCompletesTheMovie)
{
    {
        RunRecorder one(desktop, making());
        one.start(RecordScope::screen, {}, true, false);
        showAt(0s, Qt::red);
        desktop.clock().advance(1s);
    }
    EXPECT_EQ(written.finished, 1);
    EXPECT_EQ(desktop.capture().streams(), 0);
}

TEST_F(RunRecorderEnd, StoppingWaitsNoLongerThanTwoSeconds)
{
    stopSlowly();
    pass(1.9s);
    EXPECT_TRUE(returned.empty()) << "it waits for the movie";
    pass(0.2s);
    ASSERT_EQ(returned.size(), 1U);
    EXPECT_NEAR(returned[0].count(), 2, glance.count());
    EXPECT_EQ(written.finished, 0);
    EXPECT_FALSE(recorder.isRecording());
    written.mayFinish.release();
    waitUntil([] { return !isBackgroundBusy(); });
    EXPECT_EQ(written.finished, 1);
}

TEST_F(RunRecorderEnd, CompletedAtTheVeryEndOfTheWaitItReturnsOnce)
{
    stopSlowly();
    pass(1.98s);
    EXPECT_TRUE(returned.empty());
    // Both are known now, and neither has been heard.
    written.mayFinish.release();
    waitSilentlyUntil([this] { return written.finished == 1; });
    desktop.clock().advance(0.5s);
    waitUntil([] { return !isBackgroundBusy(); });
    pass(5s);
    EXPECT_EQ(returned.size(), 1U);
    EXPECT_EQ(written.finished, 1);
}

TEST_F(RunRecorderEnd, AMovieWithoutAPictureIsRemovedThoughItIsNotCompleteYet)
{
    written.finishWaits = true;
    const QString path = start();
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    stopping = stopAndNote();
    pass(2.1s);
    ASSERT_EQ(returned.size(), 1U);
    EXPECT_EQ(recorder.url(), "");
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(RunRecorderEnd, AStreamThatEndsAfterAFailureIsNotToldAgain)
{
    start();
    showAt(0s, Qt::red);
    desktop.clock().at(1s, [this] { written.failure = "No space left on device"; });
    showAt(1s, Qt::green);
    desktop.clock().at(2s, [this] { desktop.capture().end("The X server has gone."); });
    desktop.clock().advance(3s);
    QCoreApplication::processEvents();
    EXPECT_EQ(ended, QStringList("No space left on device"));
}

TEST_F(RunRecorderEnd, AStreamThatEndsTellsOnceThoughTheMovieCannotBeCompletedEither)
{
    start();
    showAt(0s, Qt::red);
    desktop.clock().at(1s, [this] {
        written.failure = "No space left on device";
        desktop.capture().end("The X server has gone.");
    });
    desktop.clock().advance(2s);
    QCoreApplication::processEvents();
    EXPECT_EQ(ended, QStringList("The X server has gone."));
}

TEST_F(RunRecorderEnd, AfterAFailureTheScreenIsReadNoMore)
{
    start();
    showAt(0s, Qt::red);
    desktop.clock().at(1s, [this] { written.failure = "No space left on device"; });
    showAt(1s, Qt::green);
    desktop.clock().advance(2s);
    EXPECT_EQ(desktop.capture().streams(), 1);
    waitUntil([this] { return !ended.isEmpty() && !isBackgroundBusy(); });
    EXPECT_EQ(desktop.capture().streams(), 0);
    EXPECT_TRUE(recorder.isRecording()) << "until it is stopped";
}

} // namespace velvane
