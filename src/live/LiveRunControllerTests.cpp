#include "live/LiveRunFixture.h"

namespace velvane {

namespace {

struct LiveRun : LiveRunFixture {
    LiveRun()
    {
        project.setSteps({stepOf(StepKind::click, 1s), stepOf(StepKind::rightClick)});
        QObject::connect(&controller, &LiveRunController::liveCountdownChanged,
                         [this] { shown.emplace_back(controller.liveCountdown(), now()); });
    }

    static QStringList whole()
    {
        return {"request accessibility", "mouseMoved 640,400",     "leftMouseDown 640,400",
                "leftMouseUp 640,400",   "rightMouseDown 640,400", "rightMouseUp 640,400",
                "activate ourselves"};
    }

    /// What the countdown showed, and since when.
    std::vector<std::pair<int, double>> shown;
};

} // namespace

TEST_F(LiveRun, AfterTheCountdownTheDemoIsPerformedAndWeComeBackInFront)
{
    run();
    EXPECT_EQ(desktop.log(), whole());
    EXPECT_EQ(reported, QStringList("Live run finished."));
    EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::finished);
    EXPECT_NEAR(desktop.posted().front().time.count(), 2.4, 1e-9);
    EXPECT_NEAR(now(), 3.4, 1e-9);
}

TEST_F(LiveRun, EachNumberOfTheCountdownShowsForEightTenthsOfASecond)
{
    run();
    ASSERT_EQ(shown.size(), 4U);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(shown[i].first, 3 - i);
        EXPECT_NEAR(shown[i].second, i * 0.8, 1e-9);
    }
}

TEST_F(LiveRun, WithoutACountdownItBeginsAtOnce)
{
    options.countdown = false;
    run();
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(desktop.posted().front().time, 0s);
    EXPECT_EQ(reported, QStringList("Live run finished."));
}

TEST_F(LiveRun, EscapeDuringTheCountdownPostsNothing)
{
    pressEscapeAt(1.0s);
    run();
    EXPECT_TRUE(desktop.posted().empty());
    EXPECT_EQ(desktop.log(), QStringList({"request accessibility", "activate ourselves"}));
    EXPECT_EQ(reported, QStringList("Live run stopped."));
    EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::stopped);
    EXPECT_EQ(controller.liveCountdown(), 0);
    EXPECT_LE(now(), 1.1 + 1e-9);
}

TEST_F(LiveRun, EscapeDuringTheRunStopsItAtOnce)
{
    pressEscapeAt(2.9s);
    run();
    EXPECT_EQ(desktop.log(), whole().mid(0, 4) + whole().mid(6));
    EXPECT_EQ(reported, QStringList("Live run stopped."));
    EXPECT_NEAR(now(), 2.9, 1e-9);
}

TEST_F(LiveRun, AnEscapeThatTheDemoPostsDoesNotStopIt)
{
    Step escape = stepOf(StepKind::shortcut);
    escape.keyCode = KeyCode::escape;
    project.setSteps({escape, stepOf(StepKind::click)});
    run();
    EXPECT_EQ(reported, QStringList("Live run finished."));
    EXPECT_EQ(desktop.posted().size(), 5U);
}

TEST_F(LiveRun, OtherKeysDoNotStopIt)
{
    desktop.clock().at(1s, [this] { desktop.press(KeyCode::space); });
    desktop.clock().at(3s, [this] { desktop.press(KeyCode::returnKey); });
    run();
    EXPECT_EQ(reported, QStringList("Live run finished."));
}

TEST_F(LiveRun, EscapeIsWatchedOnlyDuringTheRun)
{
    EXPECT_EQ(desktop.keys().watches(), 0);
    int during = -1;
    desktop.clock().at(2.5s, [&] { during = desktop.keys().watches(); });
    run();
    EXPECT_EQ(during, 1);
    EXPECT_EQ(desktop.keys().watches(), 0);
}

TEST_F(LiveRun, ARunAfterAStoppedOneGoesToItsEnd)
{
    pressEscapeAt(1s);
    run();
    run();
    EXPECT_EQ(reported, QStringList({"Live run stopped.", "Live run finished."}));
}

TEST_F(LiveRun, ItIsRunningOnlyWhileTheStepsArePerformed)
{
    std::vector<std::pair<bool, double>> running;
    QObject::connect(&controller, &LiveRunController::isRunningLiveChanged,
                     [&] { running.emplace_back(controller.isRunningLive(), now()); });
    run();
    ASSERT_EQ(running.size(), 2U);
    EXPECT_TRUE(running[0].first);
    EXPECT_NEAR(running[0].second, 2.4, 1e-9);
    EXPECT_FALSE(running[1].first);
    EXPECT_NEAR(running[1].second, 3.4, 1e-9);
}

TEST_F(LiveRun, WhileItGoesOnNoOtherCanStart)
{
    QString reason;
    desktop.clock().at(2s, [&] {
        reason = controller.missing();
        controller.runLive();
    });
    run();
    EXPECT_EQ(reason, "A live run is in progress.");
    EXPECT_EQ(desktop.log(), whole());
    EXPECT_TRUE(controller.canRunLive());
}

TEST_F(LiveRun, WhatIsBeingEditedIsPartOfTheRun)
{
    QObject::connect(&controller, &LiveRunController::aboutToRun,
                     [this] { project.setSteps({stepOf(StepKind::hold)}); });
    run();
    EXPECT_EQ(desktop.log().filter("Mouse"),
              QStringList({"leftMouseDown 640,400", "leftMouseUp 640,400"}));
}

TEST_F(LiveRun, ThePreviewPauses)
{
    playback.setTotal(10s);
    playback.play(60);
    ASSERT_TRUE(playback.isPlaying());
    run();
    EXPECT_FALSE(playback.isPlaying());
}

TEST_F(LiveRun, HidingOthersHidesThemAndUsAndBringsUsBack)
{
    for (const char *name : {"Notes", "Mail"}) {
        AppInfo app;
        app.name = name;
        desktop.apps().run(app);
    }
    Step step = stepOf(StepKind::switchApp);
    step.text = "Notes";
    project.setSteps({step});
    options.hideOthers = true;
    run();
    EXPECT_EQ(desktop.log(), QStringList({"request accessibility", "mouseMoved 640,400",
                                          "activate Notes", "hide Mail", "hide ourselves",
                                          "unhide ourselves", "activate ourselves"}));
    EXPECT_FALSE(desktop.shell().hidden());
    EXPECT_TRUE(desktop.shell().active());
}

TEST_F(LiveRun, AClosingWindowWaitsForTheEndOfTheRun)
{
    QObject window;
    bool closed = false;
    desktop.clock().at(2.9s, [&] {
        EXPECT_TRUE(controller.cancelThen(&window, [&] { closed = !controller.isBusy(); }));
    });
    run();
    EXPECT_EQ(reported, QStringList("Live run stopped."));
    QCoreApplication::processEvents();
    EXPECT_TRUE(closed);
    EXPECT_FALSE(controller.cancelThen(&window, [] {}));
}

TEST_F(LiveRun, ADisplayThatGoesAwayStopsTheRunWithinASecond)
{
    project.setSteps({stepOf(StepKind::wait, 1000s)});
    desktop.clock().at(5s, [this] { desktop.screens().setDisplays({}); });
    run();
    EXPECT_EQ(reported, QStringList("Live run stopped: the display has gone."));
    EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::stopped);
    EXPECT_LE(now(), 6);
}

} // namespace velvane
