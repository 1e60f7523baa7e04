#include "capture/RunRecorder.h"

#include "capture/Bookmark.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/MovieProbe.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <stdexcept>

namespace velvane {

namespace {

// With the files that a user gets.
class RunRecorderMovieTest : public testing::Test {
protected:
    RunRecorderMovieTest()
    {
        Display display;
        display.frame = QRectF(0, 0, 161, 100);
        display.primary = true;
        desktop.screens().setDisplays({display});
    }

    void showAt(Seconds time, int grey)
    {
        QImage image(161, 100, QImage::Format_RGB32);
        image.fill(qRgb(grey, grey, grey));
        desktop.clock().at(time, [this, image] { desktop.capture().show(image); });
    }

    TemporaryHome home;
    SimulatedDesktop desktop;
    const QDateTime moment = QDateTime::currentDateTime();
};

} // namespace

TEST_F(RunRecorderMovieTest, EveryChangeIsInTheMovieAtItsTime)
{
    RunRecorder recorder(desktop);
    const QString path = recorder.start(RecordScope::screen, {}, true, false);
    const std::vector<double> times{0, 0.5, 0.517, 1.9, 3.25};
    for (size_t i = 0; i < times.size(); ++i)
        showAt(Seconds(times[i]), 40 + int(i) * 40);
    desktop.clock().advance(4s);
    runToEnd(recorder.stop());

    MovieProbe movie(path);
    EXPECT_EQ(movie.size(), QSize(160, 100));
    EXPECT_NEAR(double(movie.duration()) / double(movie.timeScale()), 4, 1e-3);
    size_t seen = 0;
    int luma = 0;
    while (const auto picture = movie.next()) {
        const int now = quint8(picture->luma[100]);
        if (seen > 0 && std::abs(now - luma) < 10)
            continue;
        ASSERT_LT(seen, times.size());
        EXPECT_NEAR(double(picture->ticks) / double(movie.timeScale()), times[seen], 1e-3);
        luma = now;
        ++seen;
    }
    EXPECT_EQ(seen, times.size());
    EXPECT_EQ(movieBoxes(path).last(), "moov");
    EXPECT_TRUE(Bookmark::of(path));
}

TEST_F(RunRecorderMovieTest, ASecondOneInTheSameSecondLeavesTheFirstAlone)
{
    // Begun just before the end of a second they would have two names.
    QString path;
    QString reason;
    for (int i = 0; i < 5 && reason.isEmpty(); ++i) {
        RunRecorder one(desktop);
        RunRecorder other(desktop);
        path = one.start(RecordScope::screen, {}, true, false);
        showAt(desktop.clock().now(), 100);
        desktop.clock().advance(1s);
        try {
            other.start(RecordScope::screen, {}, true, false);
        } catch (const std::exception &error) {
            reason = error.what();
        }
        runToEnd(one.stop());
    }
    EXPECT_EQ(reason, "File exists");
    EXPECT_TRUE(MovieProbe(path).next());
}

TEST_F(RunRecorderMovieTest, AFileThatStandsInTheWayIsNotReplaced)
{
    QDir().mkpath(Bookmark::recordingsFolder());
    for (int i = 0; i < 20; ++i) {
        QFile file(Bookmark::recordingsFolder()
                   + moment.addSecs(i).toString("'/run-'yyyy-MM-dd-HHmmss'.mp4'"));
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("precious") == 8);
    }
    RunRecorder recorder(desktop);
    EXPECT_THROW(recorder.start(RecordScope::screen, {}, true, false), std::exception);
    for (const QFileInfo &file : QDir(Bookmark::recordingsFolder()).entryInfoList(QDir::Files))
        EXPECT_EQ(file.size(), 8);
}

} // namespace velvane
