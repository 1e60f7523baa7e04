#include "live/LiveRunFixture.h"

namespace velvane {

namespace {

struct LiveRunRefusal : LiveRunFixture {
    LiveRunRefusal() { project.setSteps({stepOf(StepKind::click)}); }

    /// Nothing was posted, watched or left busy.
    void expectNothingDone()
    {
        EXPECT_TRUE(desktop.posted().empty());
        EXPECT_EQ(desktop.keys().watches(), 0);
        EXPECT_FALSE(controller.isBusy());
        EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::refused);
        EXPECT_EQ(now(), 0);
    }
};

} // namespace

TEST_F(LiveRunRefusal, ADemoWithoutStepsIsNotRun)
{
    project.setSteps({});
    run();
    EXPECT_EQ(reported, QStringList("Add some steps first."));
    EXPECT_TRUE(desktop.log().isEmpty());
    expectNothingDone();
}

TEST_F(LiveRunRefusal, WithoutPermissionItAsksForItAndOpensTheSettings)
{
    desktop.permissions().setGranted(Permission::accessibility, false);
    EXPECT_TRUE(controller.canRunLive());
    run();
    EXPECT_EQ(reported, QStringList("Grant Accessibility permission to Velvane, then run again."));
    EXPECT_EQ(desktop.log(),
              QStringList({"request accessibility",
                           "open x-apple.systempreferences:com.apple.preference.security"
                           "?Privacy_Accessibility"}));
    expectNothingDone();
}

TEST_F(LiveRunRefusal, APermissionGrantedWhenAskedLetsItRun)
{
    desktop.permissions().setGranted(Permission::accessibility, false);
    desktop.permissions().setAnswer(Permission::accessibility, true);
    run();
    EXPECT_EQ(reported, QStringList("Live run finished."));
}

TEST_F(LiveRunRefusal, WhatTheDesktopLacksIsTheReason)
{
    desktop.input().setMissing("No input here.");
    EXPECT_FALSE(controller.canRunLive());
    EXPECT_EQ(controller.missing(), "No input here.");
    run();
    EXPECT_EQ(reported, QStringList("No input here."));
    expectNothingDone();
}

TEST_F(LiveRunRefusal, WhereEscCannotBeWatchedNothingIsRun)
{
    desktop.keys().setMissing("No keys here.");
    EXPECT_EQ(controller.missing(), "No keys here.");
    run();
    EXPECT_EQ(reported, QStringList("No keys here."));
    expectNothingDone();
}

TEST_F(LiveRunRefusal, ThePreviewGoesOn)
{
    desktop.input().setMissing("No input here.");
    playback.setTotal(10s);
    playback.play(60);
    run();
    EXPECT_TRUE(playback.isPlaying());
}

} // namespace velvane
