#include "capture/ScreenStream.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage picture(const QColor &color, QSize size = {8, 6})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

class ScreenStreamTest : public testing::Test {
protected:
    ScreenStreamTest() { runOurApp(); }

    void runOurApp()
    {
        AppInfo app;
        app.name = "Velvane";
        app.ours = true;
        desktop.apps().run(app);
    }

    void start() { runToEnd(stream.start()); }
    QTimer &watchdog() { return *stream.findChild<QTimer *>(); }
    static void settle() { QCoreApplication::processEvents(); }

    SimulatedDesktop desktop;
    ScreenStream stream{desktop};
};

} // namespace

TEST_F(ScreenStreamTest, AtFirstNothingRunsAndThereIsNoPicture)
{
    EXPECT_FALSE(stream.isRunning());
    EXPECT_FALSE(stream.wantRunning());
    EXPECT_FALSE(stream.permissionDenied());
    EXPECT_TRUE(stream.live().image().isNull());
    EXPECT_EQ(stream.live().size(), QSizeF(0, 0));
}

TEST_F(ScreenStreamTest, TheWholeDisplayIsAskedForWithoutThePointerTwelveTimesASecond)
{
    start();
    ASSERT_EQ(desktop.capture().requests().size(), 1U);
    const CaptureRequest &request = desktop.capture().requests().front();
    EXPECT_FALSE(request.region);
    EXPECT_FALSE(request.showsCursor);
    EXPECT_EQ(request.maxRate, 12);
    EXPECT_TRUE(stream.isRunning());
}

TEST_F(ScreenStreamTest, StartingTwiceMakesOneStream)
{
    start();
    start();
    EXPECT_EQ(desktop.capture().requests().size(), 1U);
    EXPECT_EQ(desktop.capture().streams(), 1);
}

TEST_F(ScreenStreamTest, WithoutAccessItAsksOnceAndIsDenied)
{
    desktop.permissions().setGranted(Permission::screenRecording, false);
    start();
    EXPECT_TRUE(stream.permissionDenied());
    EXPECT_FALSE(stream.isRunning());
    EXPECT_TRUE(stream.wantRunning());
    EXPECT_EQ(desktop.log().count("request screenRecording"), 1);
    EXPECT_TRUE(desktop.capture().requests().empty());
}

TEST_F(ScreenStreamTest, AccessGrantedWhenAskedIsEnough)
{
    desktop.permissions().setGranted(Permission::screenRecording, false);
    desktop.permissions().setAnswer(Permission::screenRecording, true);
    start();
    EXPECT_TRUE(stream.isRunning());
    EXPECT_FALSE(stream.permissionDenied());
}

TEST_F(ScreenStreamTest, AccessThatIsThereIsNotAskedFor)
{
    start();
    EXPECT_EQ(desktop.log().count("request screenRecording"), 0);
}

TEST_F(ScreenStreamTest, WithoutADisplayNothingStartsAndNothingIsDenied)
{
    desktop.screens().setDisplays({});
    start();
    EXPECT_FALSE(stream.isRunning());
    EXPECT_FALSE(stream.permissionDenied());
    EXPECT_TRUE(desktop.capture().requests().empty());
}

TEST_F(ScreenStreamTest, AFailedStartIsDeniedAndATryAgainEndsThat)
{
    desktop.capture().failWith("no");
    start();
    EXPECT_TRUE(stream.permissionDenied());
    EXPECT_FALSE(stream.isRunning());
    desktop.capture().failWith({});
    start();
    EXPECT_FALSE(stream.permissionDenied());
    EXPECT_TRUE(stream.isRunning());
}

TEST_F(ScreenStreamTest, AFailedStartDoesNotRetryByItself)
{
    desktop.capture().failWith("no");
    start();
    desktop.clock().advance(10s);
    stream.tick();
    settle();
    EXPECT_EQ(desktop.capture().requests().size(), 1U);
}

TEST_F(ScreenStreamTest, OnceTheSystemListsUsThereIsNoWait)
{
    start();
    EXPECT_EQ(desktop.clock().now(), 0s);
}

TEST_F(ScreenStreamTest, TheNewestPictureIsPublished)
{
    start();
    desktop.clock().advance(1s);
    const QImage image = picture(Qt::red);
    desktop.capture().show(image);
    EXPECT_EQ(stream.live().image().cacheKey(), image.cacheKey());
    EXPECT_EQ(stream.live().size(), QSizeF(8, 6));
    EXPECT_EQ(stream.lastFrame(), 1s);
}

TEST_F(ScreenStreamTest, TheSizeIsAnnouncedOnlyWhenItChanges)
{
    int sizes = 0;
    int images = 0;
    QObject::connect(&stream.live(), &LiveFrame::sizeChanged, [&] { ++sizes; });
    QObject::connect(&stream.live(), &LiveFrame::imageChanged, [&] { ++images; });
    start();
    desktop.capture().show(picture(Qt::red));
    desktop.capture().show(picture(Qt::blue));
    desktop.capture().show(picture(Qt::blue, {4, 4}));
    EXPECT_EQ(sizes, 2);
    EXPECT_EQ(images, 3);
}

TEST_F(ScreenStreamTest, WhatChangedIsTold)
{
    start();
    desktop.capture().show(picture(Qt::red));
    QRegion changed;
    QObject::connect(&stream.live(), &LiveFrame::imageChanged,
                     [&](const QRegion &region) { changed = region; });
    desktop.capture().show(picture(Qt::red), QRect(1, 1, 2, 2));
    EXPECT_EQ(changed, QRegion(1, 1, 2, 2));
    desktop.capture().show(picture(Qt::red, {4, 4}), QRect(1, 1, 2, 2));
    EXPECT_EQ(changed, QRegion(0, 0, 4, 4)) << "a picture of another size is all new";
}

TEST_F(ScreenStreamTest, ThreeSecondsWithoutPicturesAreNoStall)
{
    start();
    desktop.clock().advance(3s);
    stream.tick();
    settle();
    EXPECT_EQ(desktop.capture().requests().size(), 1U);
}

TEST_F(ScreenStreamTest, MoreThanThreeSecondsWithoutPicturesStartItAnew)
{
    start();
    desktop.clock().advance(2.9s);
    desktop.capture().show(picture(Qt::red));
    desktop.clock().advance(3.01s);
    stream.tick();
    EXPECT_FALSE(stream.isRunning());
    settle();
    EXPECT_TRUE(stream.isRunning());
    EXPECT_EQ(desktop.capture().requests().size(), 2U);
    EXPECT_EQ(desktop.capture().streams(), 1);
}

TEST_F(ScreenStreamTest, TheWatchdogLooksEveryTwoSecondsWhileAStreamRuns)
{
    EXPECT_FALSE(watchdog().isActive());
    start();
    EXPECT_TRUE(watchdog().isActive());
    EXPECT_FALSE(watchdog().isSingleShot());
    EXPECT_EQ(watchdog().intervalAsDuration(), 2s);
    desktop.clock().advance(3.01s);
    QMetaObject::invokeMethod(&watchdog(), "timeout");
    settle();
    EXPECT_EQ(desktop.capture().requests().size(), 2U);
    stream.stop();
    EXPECT_FALSE(watchdog().isActive());
}

TEST_F(ScreenStreamTest, AStreamThatTheSystemEndsIsStartedAnew)
{
    start();
    desktop.capture().end("gone");
    settle();
    settle();
    EXPECT_TRUE(stream.isRunning());
    EXPECT_EQ(desktop.capture().requests().size(), 2U);
}

TEST_F(ScreenStreamTest, ARecoveryThatFailsIsDenied)
{
    start();
    desktop.capture().failWith("gone");
    desktop.capture().end("gone");
    settle();
    settle();
    EXPECT_FALSE(stream.isRunning());
    EXPECT_TRUE(stream.permissionDenied());
}

TEST_F(ScreenStreamTest, StoppedItKeepsThePictureAndNothingComesAnyMore)
{
    start();
    desktop.capture().show(picture(Qt::red));
    stream.stop();
    EXPECT_EQ(desktop.capture().streams(), 0);
    EXPECT_FALSE(stream.isRunning());
    EXPECT_FALSE(stream.wantRunning());
    desktop.capture().show(picture(Qt::blue));
    EXPECT_EQ(stream.live().image().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(ScreenStreamTest, AfterAStopNeitherTheWatchdogNorALateEndDoesAnything)
{
    start();
    desktop.capture().end("late");
    stream.stop();
    desktop.clock().advance(10s);
    stream.tick();
    stream.recover();
    settle();
    settle();
    EXPECT_EQ(desktop.capture().requests().size(), 1U);
    EXPECT_FALSE(stream.isRunning());
}

TEST_F(ScreenStreamTest, ALateEndOfAnOlderStreamLeavesTheNewOneAlone)
{
    start();
    desktop.capture().end("late");
    stream.stop();
    start();
    settle();
    settle();
    EXPECT_EQ(desktop.capture().requests().size(), 2U);
    EXPECT_TRUE(stream.isRunning());
}

TEST_F(ScreenStreamTest, TheSettingsPageIsTheOneOfScreenRecording)
{
    stream.openScreenRecordingSettings();
    EXPECT_EQ(desktop.log(),
              (QStringList{"open x-apple.systempreferences:com.apple.preference.security"
                           "?Privacy_ScreenCapture"}));
}

} // namespace velvane
