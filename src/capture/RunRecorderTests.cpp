#include "capture/RunRecorderFixture.h"

#include "capture/Bookmark.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace velvane {

namespace {

class RunRecorderTest : public RunRecorderFixture {
protected:
    quint64 addWindow(const QString &app, const QRectF &frame, bool onScreen = true)
    {
        WindowInfo window;
        window.owner.name = app;
        window.owner.localizedName = app;
        window.frame = frame;
        window.onScreen = onScreen;
        return desktop.windows().add(window);
    }
    QString refusal()
    {
        try {
            start();
        } catch (const std::exception &error) {
            return QString::fromStdString(error.what());
        }
        return {};
    }
    void setDisplay(QSizeF points, qreal scale)
    {
        Display display;
        display.frame = QRectF({}, points);
        display.primary = true;
        display.scale = scale;
        desktop.screens().setDisplays({display});
    }
    QRectF region() { return desktop.capture().requests().back().region.value_or(QRectF()); }
};

} // namespace

TEST_F(RunRecorderTest, ItWritesIntoMoviesVelvaneUnderTheTimeOfDay)
{
    const QString path = start();
    EXPECT_EQ(path, home.path() + "/Movies/Velvane/run-2026-03-09-070502.mp4");
    EXPECT_EQ(written.path, path);
    EXPECT_EQ(recorder.url(), path);
    EXPECT_TRUE(QFileInfo(home.path() + "/Movies/Velvane").isDir());
    EXPECT_TRUE(recorder.isRecording());
}

TEST_F(RunRecorderTest, TheWholeDisplayIsAskedForSixtyTimesASecond)
{
    start();
    const CaptureRequest &request = desktop.capture().requests().back();
    EXPECT_FALSE(request.region);
    EXPECT_EQ(request.maxRate, 60);
    EXPECT_TRUE(request.showsCursor);
    EXPECT_EQ(written.size, QSize(1920, 1080));
    EXPECT_FALSE(recorder.fellBackToScreen());
}

TEST_F(RunRecorderTest, ThePointerIsThereOnlyWhenAsked)
{
    start(RecordScope::screen, {}, false);
    EXPECT_FALSE(desktop.capture().requests().back().showsCursor);
}

TEST_F(RunRecorderTest, WithoutADisplayThereIsNothingToRecord)
{
    desktop.screens().setDisplays({});
    EXPECT_EQ(refusal(), "No display to record");
    EXPECT_EQ(written.path, "");
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(recorder.url(), "");
}

TEST_F(RunRecorderTest, ACaptureThatDoesNotOpenIsToldAndLeavesNoFile)
{
    RunRecorder real(desktop);
    desktop.capture().failWith("No capture today.");
    QString reason;
    try {
        real.start(RecordScope::screen, {}, true, false);
    } catch (const std::exception &error) {
        reason = error.what();
    }
    EXPECT_EQ(reason, "No capture today.");
    EXPECT_TRUE(QDir(Bookmark::recordingsFolder()).isEmpty());
}

TEST_F(RunRecorderTest, AFolderThatCannotBeMadeIsToldByTheFile)
{
    QFile inTheWay(home.path() + "/Movies");
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    RunRecorder real(desktop);
    EXPECT_THROW(real.start(RecordScope::screen, {}, true, false), std::exception);
    EXPECT_FALSE(real.isRecording());
}

TEST_F(RunRecorderTest, TheWindowOfTheApplicationIsRecorded)
{
    addWindow("Mail", QRectF(0, 0, 1000, 800));
    addWindow("Notes", QRectF(100, 50, 640, 480));
    start(RecordScope::window, "Notes");
    EXPECT_EQ(region(), QRectF(100, 50, 640, 480));
    EXPECT_EQ(written.size, QSize(640, 480));
    EXPECT_FALSE(recorder.fellBackToScreen());
}

TEST_F(RunRecorderTest, CaseAndSpacesOfTheNameDoNotMatter)
{
    addWindow("Notes", QRectF(100, 50, 640, 480));
    start(RecordScope::window, " \tnOtEs \n");
    EXPECT_EQ(written.size, QSize(640, 480));
}

TEST_F(RunRecorderTest, AWindowAcrossTheEdgeIsRecordedAsFarAsTheDisplayGoes)
{
    addWindow("Notes", QRectF(1800, -20, 640, 480));
    start(RecordScope::window, "Notes");
    EXPECT_EQ(region(), QRectF(1800, 0, 120, 460));
    EXPECT_EQ(written.size, QSize(120, 460));
}

TEST_F(RunRecorderTest, WithoutSuchAWindowTheDisplayIsRecorded)
{
    addWindow("Notes", QRectF(0, 0, 120, 480));
    addWindow("Notes", QRectF(0, 0, 640, 80));
    addWindow("Notes", QRectF(0, 0, 640, 480), false);
    addWindow("Notes", QRectF(5000, 0, 640, 480));
    addWindow("", QRectF(0, 0, 640, 480));
    for (const char *name : {"Notes", "Mail", "", "  "}) {
        RunRecorder one(desktop, making());
        one.start(RecordScope::window, name, true, false);
        EXPECT_TRUE(one.fellBackToScreen()) << name;
        EXPECT_FALSE(desktop.capture().requests().back().region) << name;
        EXPECT_EQ(written.size, QSize(1920, 1080)) << name;
    }
}

TEST_F(RunRecorderTest, TheLargestWindowIsTheMainOneAndAmongEqualsTheFirst)
{
    addWindow("Notes", QRectF(0, 0, 300, 200));
    const quint64 first = addWindow("Notes", QRectF(0, 0, 400, 300));
    addWindow("Notes", QRectF(0, 0, 300, 400));
    const auto found = RunRecorder::mainWindow("notes", desktop.windows().windows());
    ASSERT_TRUE(found);
    EXPECT_EQ(found->id, first);
}

TEST_F(RunRecorderTest, OddSidesLoseTheLastPixelAndNoSideIsLessThanTwo)
{
    setDisplay({1441, 901}, 1);
    start();
    EXPECT_EQ(written.size, QSize(1440, 900));
    const auto sizeOf = [&](QSizeF points, qreal scale) {
        setDisplay(points, scale);
        RunRecorder one(desktop, making());
        one.start(RecordScope::screen, {}, true, false);
        return written.size;
    };
    EXPECT_EQ(sizeOf({1, 0.4}, 1), QSize(2, 2));
    EXPECT_EQ(sizeOf({100.6, 50.4}, 1), QSize(100, 50));
    EXPECT_EQ(sizeOf({100.5, 50}, 2), QSize(200, 100));
}

TEST_F(RunRecorderTest, PointsOrPixelsAsAsked)
{
    setDisplay({800, 600}, 2);
    start(RecordScope::screen, {}, true, true);
    EXPECT_EQ(written.size, QSize(800, 600));
    // Pictures come in pixels and are brought to the movie's size.
    showAt(0s, Qt::red, {1600, 1200});
    desktop.clock().advance(1s);
    ASSERT_EQ(written.frames.size(), 1U);
    EXPECT_EQ(written.frames[0].image.size(), QSize(800, 600));
}

TEST_F(RunRecorderTest, FramesKeepTheTimeAtWhichTheyWereTaken)
{
    desktop.clock().advance(100s);
    start();
    EXPECT_EQ(recorder.begun(), 100s);
    showAt(100.2s, Qt::red);
    showAt(100.25s, Qt::green);
    showAt(103.5s, Qt::blue);
    desktop.clock().advance(5s);
    stop();
    ASSERT_EQ(written.frames.size(), 4U);
    EXPECT_EQ(written.frames[0].time, 0s) << "the first shows from the beginning on";
    EXPECT_NEAR(written.frames[1].time.count(), 0.25, 1e-9);
    EXPECT_NEAR(written.frames[2].time.count(), 3.5, 1e-9);
    EXPECT_TRUE(written.frames[3].image.isNull());
    EXPECT_NEAR(written.frames[3].time.count(), 5 - 1 / 60.0, 1e-9) << "shows until the end";
    EXPECT_EQ(written.finished, 1);
}

TEST_F(RunRecorderTest, AnotherResolutionIsBroughtToTheMoviesSize)
{
    start();
    showAt(0s, Qt::red);
    showAt(1s, Qt::green, {800, 600});
    showAt(2s, Qt::blue);
    desktop.clock().advance(3s);
    ASSERT_EQ(written.frames.size(), 3U);
    for (const Frame &frame : written.frames)
        EXPECT_EQ(frame.image.size(), QSize(1920, 1080));
    EXPECT_EQ(written.frames[1].image.pixelColor(960, 540), QColor(0, 255, 0));
    EXPECT_EQ(written.frames[1].image.pixelColor(10, 540), QColor(Qt::black));
    EXPECT_EQ(written.frames[2].changed, QRegion(0, 0, 1920, 1080));
}

} // namespace velvane
