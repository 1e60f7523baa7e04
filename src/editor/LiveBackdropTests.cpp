#include "editor/LiveBackdrop.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage picture(const QColor &color, QSize size = {8, 6})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

class LiveBackdropTest : public testing::Test {
protected:
    LiveBackdropTest()
    {
        AppInfo us;
        us.ours = true;
        desktop.apps().run(us);
    }

    void grant(bool granted)
    {
        desktop.permissions().setGranted(Permission::screenRecording, granted);
    }
    int streams() { return desktop.capture().streams(); }

    SimulatedDesktop desktop;
    Project project;
    StatusLine status;
    BackdropController backdrop{project, status, desktop};
    LiveBackdrop live{backdrop, desktop};
};

} // namespace

TEST_F(LiveBackdropTest, LiveIsOffAtFirstAndNothingIsCaptured)
{
    live.setOnScreen(true);
    EXPECT_FALSE(backdrop.showLive());
    EXPECT_EQ(streams(), 0);
}

TEST_F(LiveBackdropTest, TheStreamRunsWhileLiveIsOn)
{
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    EXPECT_EQ(streams(), 1);
    backdrop.setShowLive(false);
    EXPECT_EQ(streams(), 0);
}

TEST_F(LiveBackdropTest, TheStreamRunsWhileTheEditorIsOnTheScreen)
{
    backdrop.setShowLive(true);
    EXPECT_EQ(streams(), 0);
    live.setOnScreen(true);
    EXPECT_EQ(streams(), 1);
    live.setOnScreen(false);
    EXPECT_EQ(streams(), 0);
    EXPECT_TRUE(backdrop.showLive());
}

TEST_F(LiveBackdropTest, ItsPicturesAreTheBackdrop)
{
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    desktop.capture().show(picture(Qt::red));
    EXPECT_EQ(backdrop.backdrop().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(backdrop.liveSize(), QSizeF(8, 6));
}

TEST_F(LiveBackdropTest, APartThatChangesIsAnnouncedAsThatPart)
{
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    QStringList heard;
    QObject::connect(&backdrop, &BackdropController::backdropChanged, [&] { heard << "whole"; });
    QObject::connect(&backdrop, &BackdropController::backdropUpdated, [&](const QRegion &changed) {
        heard << QString::number(changed.boundingRect().width());
    });
    desktop.capture().show(picture(Qt::red));
    desktop.capture().show(picture(Qt::blue), QRect(1, 1, 3, 3));
    desktop.capture().show(picture(Qt::blue), {});
    desktop.capture().show(picture(Qt::blue, {4, 4}));
    EXPECT_EQ(heard, QStringList({"whole", "3", "whole"}));
}

TEST_F(LiveBackdropTest, WhileFrozenTheScreenGoesOnUnseen)
{
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    desktop.capture().show(picture(Qt::red));
    backdrop.setFrozen(true);
    int heard = 0;
    QObject::connect(&backdrop, &BackdropController::backdropUpdated, [&] { ++heard; });
    desktop.capture().show(picture(Qt::blue));
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(project.background().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(project.canvasSize(), QSizeF(8, 6));
    backdrop.setFrozen(false);
    EXPECT_EQ(backdrop.backdrop().pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(LiveBackdropTest, AMissingPermissionIsToldUntilItIsGranted)
{
    int told = 0;
    QObject::connect(&live, &LiveBackdrop::permissionMissingChanged, [&] { ++told; });
    grant(false);
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    EXPECT_TRUE(live.permissionMissing());
    EXPECT_EQ(told, 1);
    live.tryAgain();
    EXPECT_TRUE(live.permissionMissing());
    grant(true);
    live.tryAgain();
    EXPECT_FALSE(live.permissionMissing());
    EXPECT_EQ(told, 2);
    EXPECT_EQ(streams(), 1);
}

TEST_F(LiveBackdropTest, WithLiveOffNoPermissionIsMissing)
{
    grant(false);
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    backdrop.setShowLive(false);
    EXPECT_FALSE(live.permissionMissing());
    grant(true);
    live.tryAgain();
    EXPECT_EQ(streams(), 0) << "nobody wants it";
    backdrop.setShowLive(true);
    EXPECT_EQ(streams(), 1);
}

TEST_F(LiveBackdropTest, WithoutALiveFrameFreezeSaysSo)
{
    grant(false);
    live.setOnScreen(true);
    backdrop.setShowLive(true);
    backdrop.setFrozen(true);
    EXPECT_FALSE(backdrop.frozen());
    EXPECT_EQ(status.message(), "No live frame yet — grant Screen Recording first.");
}

} // namespace velvane
