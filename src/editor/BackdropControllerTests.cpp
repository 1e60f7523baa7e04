#include "editor/BackdropController.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage picture(const QColor &color)
{
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

const QImage live = picture(Qt::green);
const QImage movie = picture(Qt::blue);
const QImage still = picture(Qt::red);

class BackdropTest : public testing::Test {
protected:
    BackdropTest()
    {
        project.setUndoManager(&undo);
        backdrop.setRecordingMissing({});
    }

    bool shows(const QImage &image) const
    {
        return backdrop.backdrop().cacheKey() == image.cacheKey();
    }

    SimulatedDesktop desktop;
    Project project;
    QUndoStack undo;
    StatusLine status;
    BackdropController backdrop{project, status, desktop};
};

} // namespace

TEST_F(BackdropTest, AtFirstTheDemosOwnPictureShows)
{
    project.setBackground(still);
    EXPECT_FALSE(backdrop.showLive());
    EXPECT_FALSE(backdrop.showRecording());
    EXPECT_FALSE(backdrop.frozen());
    EXPECT_TRUE(shows(still));
}

TEST_F(BackdropTest, LiveAndRecordingExcludeEachOther)
{
    backdrop.setShowLive(true);
    backdrop.setShowRecording(true);
    EXPECT_FALSE(backdrop.showLive());
    EXPECT_TRUE(backdrop.showRecording());
    backdrop.setShowLive(true);
    EXPECT_TRUE(backdrop.showLive());
    EXPECT_FALSE(backdrop.showRecording());
    backdrop.setShowRecording(false);
    EXPECT_TRUE(backdrop.showLive());
}

TEST_F(BackdropTest, TheSourceInUseShowsOnceItHasAPicture)
{
    project.setBackground(still);
    backdrop.setShowLive(true);
    EXPECT_TRUE(shows(still));
    backdrop.setLiveFrame(live, {4, 3});
    EXPECT_TRUE(shows(live));
    backdrop.setRecordingFrame(movie, {4, 3});
    EXPECT_TRUE(shows(live));
    backdrop.setShowRecording(true);
    EXPECT_TRUE(shows(movie));
}

TEST_F(BackdropTest, FreezingKeepsThePictureAndItsSizeInOneEdit)
{
    backdrop.setShowLive(true);
    backdrop.setLiveFrame(live, {1920, 1080});
    backdrop.setFrozen(true);
    EXPECT_TRUE(backdrop.frozen());
    EXPECT_FALSE(backdrop.useLive());
    EXPECT_TRUE(shows(live));
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Freeze Frame");
}

TEST_F(BackdropTest, AFrozenPictureStaysWhileTheSourceGoesOn)
{
    backdrop.setShowLive(true);
    backdrop.setLiveFrame(live, {4, 3});
    backdrop.setFrozen(true);
    backdrop.setLiveFrame(movie, {4, 3});
    EXPECT_TRUE(shows(live));
    backdrop.setFrozen(false);
    EXPECT_TRUE(shows(movie));
    EXPECT_EQ(project.background().cacheKey(), live.cacheKey());
}

TEST_F(BackdropTest, TheSamePictureFrozenAgainIsNoEdit)
{
    backdrop.setShowLive(true);
    backdrop.setLiveFrame(live, {4, 3});
    backdrop.setFrozen(true);
    backdrop.setFrozen(false);
    backdrop.setFrozen(true);
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(BackdropTest, WithoutALivePictureFreezeStaysOffAndSaysSo)
{
    backdrop.setShowLive(true);
    backdrop.setFrozen(true);
    EXPECT_FALSE(backdrop.frozen());
    EXPECT_EQ(status.message(), "No live frame yet — grant Screen Recording first.");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(BackdropTest, WithoutARecordedPictureFreezeStaysOffAndSaysSo)
{
    backdrop.setLiveFrame(live, {4, 3});
    backdrop.setShowRecording(true);
    backdrop.setFrozen(true);
    EXPECT_FALSE(backdrop.frozen());
    EXPECT_EQ(status.message(), "No recording frame to freeze yet.");
}

TEST_F(BackdropTest, TheCanvasKeepsItsSizeWhenThePicturesIsUnknownOrAbsurd)
{
    const double huge = std::numeric_limits<double>::infinity();
    for (const QSizeF size : {QSizeF(0, 0), QSizeF(huge, 5), QSizeF(1e300, 5)}) {
        backdrop.setFrozen(false);
        backdrop.setLiveFrame(live.copy(), size);
        backdrop.setFrozen(true);
        EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
    }
}

TEST_F(BackdropTest, AFractionOfASizeIsCutOff)
{
    backdrop.setLiveFrame(live, {100.9, 50.9});
    backdrop.setFrozen(true);
    EXPECT_EQ(project.canvasSize(), QSizeF(100, 50));
}

TEST_F(BackdropTest, FreezeIsOfferedWhileASourceShowsOrItIsOn)
{
    EXPECT_FALSE(backdrop.canFreeze());
    backdrop.setShowRecording(true);
    EXPECT_TRUE(backdrop.canFreeze());
    backdrop.setRecordingFrame(movie, {4, 3});
    backdrop.setFrozen(true);
    backdrop.setShowRecording(false);
    EXPECT_TRUE(backdrop.canFreeze());
    backdrop.setFrozen(false);
    EXPECT_FALSE(backdrop.canFreeze());
}

TEST_F(BackdropTest, WhetherThereIsAPictureToFreezeDependsOnTheSource)
{
    EXPECT_FALSE(backdrop.hasFrame());
    backdrop.setLiveFrame(live, {4, 3});
    EXPECT_TRUE(backdrop.hasFrame());
    backdrop.setShowRecording(true);
    EXPECT_FALSE(backdrop.hasFrame());
    backdrop.setRecordingFrame(movie, {4, 3});
    EXPECT_TRUE(backdrop.hasFrame());
}

TEST_F(BackdropTest, ASourceThatIsMissingIsRefusedWithItsReason)
{
    backdrop.setLiveMissing("No screen to show.");
    backdrop.setShowLive(true);
    EXPECT_FALSE(backdrop.showLive());
    EXPECT_EQ(status.message(), "No screen to show.");
    backdrop.setRecordingMissing("No recording.");
    backdrop.setShowRecording(true);
    EXPECT_FALSE(backdrop.showRecording());
    EXPECT_EQ(status.message(), "No recording.");
}

TEST_F(BackdropTest, ASourceThatGoesAwayIsSwitchedOff)
{
    backdrop.setShowLive(true);
    backdrop.setLiveMissing("The display is gone.");
    EXPECT_FALSE(backdrop.showLive());
}

TEST_F(BackdropTest, ChangesAreAnnouncedOnce)
{
    QStringList heard;
    QObject::connect(&backdrop, &BackdropController::showLiveChanged, [&] { heard << "live"; });
    QObject::connect(&backdrop, &BackdropController::frozenChanged, [&] { heard << "frozen"; });
    QObject::connect(&backdrop, &BackdropController::canFreezeChanged, [&] { heard << "can"; });
    QObject::connect(&backdrop, &BackdropController::backdropChanged, [&] { heard << "picture"; });
    backdrop.setShowLive(true);
    backdrop.setShowLive(true);
    EXPECT_EQ(heard, QStringList({"live", "can"}));
    heard.clear();
    backdrop.setLiveFrame(live, {1280, 800});
    EXPECT_EQ(heard, QStringList({"can", "picture"}));
    heard.clear();
    backdrop.setRecordingFrame(movie, {1280, 800});
    EXPECT_TRUE(heard.isEmpty());
}

TEST(Backdrop, WhatTheDesktopLacksIsTheReason)
{
    SimulatedDesktop desktop;
    desktop.capture().setMissing("No capture here.");
    Project project;
    StatusLine status;
    const BackdropController backdrop(project, status, desktop);
    EXPECT_EQ(backdrop.liveMissing(), "No capture here.");
}

TEST(Backdrop, WhereTheScreenCanBeCapturedLiveIsOffered)
{
    SimulatedDesktop desktop;
    Project project;
    StatusLine status;
    BackdropController backdrop(project, status, desktop);
    EXPECT_EQ(backdrop.liveMissing(), "");
    backdrop.setShowLive(true);
    EXPECT_TRUE(backdrop.showLive());
}

} // namespace velvane
