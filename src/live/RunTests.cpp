#include "live/RunFixture.h"

#include "base/KeyCode.h"

namespace velvane {

TEST_F(LiveDriver, AMoveOfNoDurationPostsItsBothEndsAnIntervalApart)
{
    run({moveTo({30, 40})});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "mouseMoved 10,20", "mouseMoved 30,40"}));
    const auto events = desktop.posted();
    EXPECT_EQ(events[1].time, 0s);
    EXPECT_DOUBLE_EQ(events[2].time.count(), 1.0 / 60);
    EXPECT_DOUBLE_EQ(now(), 2.0 / 60);
}

TEST_F(LiveDriver, ASecondAtSixtyFramesIsSixtyOneEvents)
{
    run({moveTo({110, 20}, 1s)});
    const auto events = desktop.posted();
    ASSERT_EQ(events.size(), 62U);
    for (int k = 0; k <= 60; ++k)
        EXPECT_NEAR(events[k + 1].time.count(), k / 60.0, 1e-9);
    EXPECT_NEAR(now(), 61 / 60.0, 1e-9);
}

TEST_F(LiveDriver, BelowThirtyFramesTheCursorTravelsAtThirty)
{
    demo.fps = 24;
    run({moveTo({110, 20}, 1s)});
    const auto events = desktop.posted();
    ASSERT_EQ(events.size(), 32U);
    EXPECT_NEAR(events[31].time.count(), 1, 1e-9);
}

TEST_F(LiveDriver, TheCursorTravelsByACubicEaseInAndOut)
{
    demo.fps = 40;
    demo.startPoint = {0, 0};
    run({moveTo({1000, 100}, 0.1s)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 0,0", "mouseMoved 0,0", "mouseMoved 62.5,6.25",
                           "mouseMoved 500,50", "mouseMoved 937.5,93.75", "mouseMoved 1000,100"}));
}

TEST_F(LiveDriver, PartsOfAnIntervalAreCutOff)
{
    run({moveTo({30, 40}, 0.049s)});
    // 2.94 intervals are 2: three events after the first.
    EXPECT_EQ(desktop.posted().size(), 4U);
}

TEST_F(LiveDriver, ClicksPressAndReleaseAtOnceWhereTheCursorIs)
{
    run({stepOf(StepKind::click, 0.5s), stepOf(StepKind::rightClick)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseUp 10,20",
                           "rightMouseDown 10,20", "rightMouseUp 10,20"}));
    const auto events = desktop.posted();
    EXPECT_EQ(events[1].time, events[2].time);
    EXPECT_EQ(events[3].time, 0.5s);
    EXPECT_EQ(events[4].time, 0.5s);
}

TEST_F(LiveDriver, HoldMoveReleaseDrags)
{
    run({stepOf(StepKind::hold), moveTo({30, 40}, 0.035s), stepOf(StepKind::release),
         moveTo({0, 0})});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseDragged 10,20",
                           "leftMouseDragged 20,30", "leftMouseDragged 30,40", "leftMouseUp 30,40",
                           "mouseMoved 30,40", "mouseMoved 0,0"}));
}

TEST_F(LiveDriver, AClickWhileHeldLeavesTheNextMoveADragAndTheEndAnotherRelease)
{
    run({stepOf(StepKind::hold), stepOf(StepKind::click), moveTo({30, 40})});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseDown 10,20",
                           "leftMouseUp 10,20", "leftMouseDragged 10,20", "leftMouseDragged 30,40",
                           "leftMouseUp 30,40"}));
}

TEST_F(LiveDriver, CancelledAfterAHoldItReleasesOnceWhereTheCursorIs)
{
    cancelAt(1s);
    run({stepOf(StepKind::hold, 5s), moveTo({30, 40})});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseUp 10,20"}));
    EXPECT_EQ(now(), 1);
}

TEST_F(LiveDriver, CancelledInTheMiddleOfADragItReleasesAtTheTarget)
{
    cancelAt(0.02s);
    run({stepOf(StepKind::hold), moveTo({30, 40}, 1s), stepOf(StepKind::click)});
    const QStringList log = desktop.log();
    ASSERT_EQ(log.size(), 5);
    EXPECT_EQ(log.last(), "leftMouseUp 30,40");
    EXPECT_EQ(log.filter("leftMouseDragged").size(), 2);
}

TEST_F(LiveDriver, CancelledBeforeTheFirstStepOnlyTheStartIsPosted)
{
    cancelled = true;
    run({stepOf(StepKind::hold), moveTo({30, 40})});
    EXPECT_EQ(desktop.log(), QStringList("mouseMoved 10,20"));
}

TEST_F(LiveDriver, AShortcutWithoutKeyAndModifiersIsSkipped)
{
    run({shortcut(0, 0), shortcut(0, Modifier::command), shortcut(36, 0)});
    EXPECT_EQ(desktop.log(), QStringList({"mouseMoved 10,20", "keyDown 0 +0x100000",
                                          "keyUp 0 +0x100000", "keyDown 36", "keyUp 36"}));
}

TEST_F(LiveDriver, OfAShortcutsModifiersOnlyTheFourCount)
{
    run({shortcut(8, Modifier::shift | Modifier::control | Modifier::option | Modifier::command
                         | 0x10000 | 1)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "keyDown 8 +0x1e0000", "keyUp 8 +0x1e0000"}));
}

TEST_F(LiveDriver, SectionsPostNothingAndTakeNoTime)
{
    run({stepOf(StepKind::section, 5s), stepOf(StepKind::section, 5s)});
    EXPECT_EQ(desktop.log(), QStringList("mouseMoved 10,20"));
    EXPECT_EQ(now(), 0);
}

TEST_F(LiveDriver, AWaitTakesItsPauseAndNotItsDuration)
{
    Step wait = stepOf(StepKind::wait);
    wait.duration = 5s;
    run({wait});
    EXPECT_EQ(now(), 0);
    wait.pauseAfter = 2s;
    run({wait});
    EXPECT_EQ(now(), 2);
}

TEST_F(LiveDriver, ATextIsTypedOverItsDuration)
{
    Step type = stepOf(StepKind::type, 1s);
    type.text = "hi";
    type.duration = 0.1s;
    run({type, stepOf(StepKind::click)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "keyDown \"h\"", "keyUp \"h\"", "keyDown \"i\"",
                           "keyUp \"i\"", "leftMouseDown 10,20", "leftMouseUp 10,20"}));
    EXPECT_NEAR(desktop.posted().back().time.count(), 1.1, 1e-9);
}

TEST_F(LiveDriver, ASwitchActivatesThenCentresThenHidesTheOthers)
{
    runApp("Notes");
    runApp("Mail");
    WindowInfo window;
    window.owner.name = "Notes";
    window.frame = QRectF(0, 0, 920, 600);
    desktop.windows().add(window);
    hideOthers = true;
    Step step = switchTo("Notes");
    step.centerWindow = true;
    run({step});
    EXPECT_EQ(desktop.log(), QStringList({"mouseMoved 10,20", "activate Notes",
                                          "moveWindow 1 500,256", "hide Mail", "hide ourselves"}));
    EXPECT_TRUE(desktop.shell().hidden());
}

TEST_F(LiveDriver, ThePauseAfterASwitchBeginsOnceTheSwitchIsDone)
{
    runApp("Notes");
    const Token slow = desktop.apps().watchActivations(
        [this](const AppInfo &) { desktop.clock().advance(0.25s); });
    Step step = switchTo("Notes");
    step.pauseAfter = 0.5s;
    run({stepOf(StepKind::wait, 1s), step, stepOf(StepKind::click)});
    EXPECT_DOUBLE_EQ(desktop.posted().back().time.count(), 1.75);
}

TEST_F(LiveDriver, ASwitchHidesAndCentresOnlyWhenAsked)
{
    runApp("Notes");
    runApp("Mail");
    run({switchTo("Notes")});
    EXPECT_EQ(desktop.log(), QStringList({"mouseMoved 10,20", "activate Notes"}));
}

TEST_F(LiveDriver, AnUnknownApplicationIsSkippedAndItsPauseKept)
{
    Step step = switchTo("Nobody \"here\"/\x01");
    step.pauseAfter = 0.8s;
    run({step, stepOf(StepKind::click)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseUp 10,20"}));
    EXPECT_DOUBLE_EQ(now(), 0.8);
}

TEST_F(LiveDriver, OverAMinuteNothingDrifts)
{
    QList<Step> steps;
    for (int i = 0; i < 60; ++i)
        steps << moveTo({i % 2 ? 0.0 : 500.0, 0}, 0.9s, 0.1s - 1s / 60);
    run(steps);
    EXPECT_NEAR(now(), 60, 1e-6);
}

} // namespace velvane
