#include "editor/FocusedActions.h"
#include "support/EditorFixture.h"

namespace velvane {

namespace {

struct MenuActionsPublisherTest : EditorFixture {
    const MenuActions &actions() { return *view->menuActions().menuActions(); }
    void giveLivePicture()
    {
        view->backdrop().setLiveMissing({});
        view->backdrop().setRecordingMissing({});
        QImage picture(8, 6, QImage::Format_RGB32);
        picture.fill(Qt::green);
        view->backdrop().setLiveFrame(picture, {8, 6});
    }
};

} // namespace

TEST_F(MenuActionsPublisherTest, AnEmptyDemoHasNothingToPlayRewindOrDelete)
{
    open({});
    EXPECT_FALSE(actions().canPlayPause);
    EXPECT_FALSE(actions().canGoToStart);
    EXPECT_FALSE(actions().canDelete);
    EXPECT_FALSE(actions().isPlaying);
    EXPECT_FALSE(actions().zoomOn);
    EXPECT_TRUE(view->menuActions().exportVideo());
}

TEST_F(MenuActionsPublisherTest, PlayingFollowsThePreviewsClock)
{
    open({stepOf(StepKind::wait)});
    EXPECT_TRUE(actions().canPlayPause);
    actions().playPause();
    EXPECT_TRUE(actions().isPlaying);
    view->playback().tick();
    EXPECT_TRUE(actions().canGoToStart);
    actions().playPause();
    EXPECT_FALSE(actions().isPlaying);
    actions().goToStart();
    EXPECT_EQ(view->playback().time(), 0s);
    EXPECT_FALSE(actions().canGoToStart);
}

TEST_F(MenuActionsPublisherTest, WhilePlayingFramesPublishNothing)
{
    open({stepOf(StepKind::wait)});
    actions().playPause();
    view->playback().tick();
    int published = 0;
    QObject::connect(&view->menuActions(), &FocusedActions::published, view.get(),
                     [&published] { ++published; });
    view->playback().tick();
    EXPECT_EQ(published, 0);
}

TEST_F(MenuActionsPublisherTest, DeleteFollowsTheSelection)
{
    open({stepOf(StepKind::wait), stepOf(StepKind::click)});
    project.setSelection(step(1).id);
    EXPECT_TRUE(actions().canDelete);
    actions().deleteStep();
    ASSERT_EQ(project.steps().size(), 1);
    EXPECT_EQ(step().kind, StepKind::wait);
    view->selection().select({});
    EXPECT_FALSE(actions().canDelete);
}

TEST_F(MenuActionsPublisherTest, AddStepAddsOneOfTheKind)
{
    open({});
    actions().addStep(StepKind::hold);
    ASSERT_EQ(project.steps().size(), 1);
    EXPECT_EQ(step().kind, StepKind::hold);
    EXPECT_TRUE(actions().canDelete);
}

TEST_F(MenuActionsPublisherTest, TheMagnifierFollows)
{
    open({});
    actions().toggleZoom();
    EXPECT_TRUE(view->canvas().magnify());
    EXPECT_TRUE(actions().zoomOn);
    view->canvas().setMagnify(false);
    EXPECT_FALSE(actions().zoomOn);
}

TEST_F(MenuActionsPublisherTest, BackdropsFollow)
{
    open({});
    EXPECT_FALSE(actions().canFreeze);
    giveLivePicture();
    EXPECT_TRUE(actions().canToggleLive);
    EXPECT_TRUE(actions().canRecordingBackdrop);
    actions().toggleLive();
    EXPECT_TRUE(actions().liveOn);
    EXPECT_TRUE(actions().canFreeze);
    actions().toggleFreeze();
    EXPECT_TRUE(actions().freezeOn);
    actions().toggleFreeze();
    EXPECT_FALSE(actions().freezeOn);
    actions().toggleRecording();
    EXPECT_TRUE(actions().recordingOn);
    EXPECT_FALSE(actions().liveOn);
    actions().toggleRecording();
    EXPECT_FALSE(actions().recordingOn);
}

TEST_F(MenuActionsPublisherTest, FreezingNeedsAFrame)
{
    open({});
    view->backdrop().setLiveMissing({});
    actions().toggleLive();
    EXPECT_FALSE(actions().canFreeze);
    giveLivePicture();
    EXPECT_TRUE(actions().canFreeze);
}

TEST_F(MenuActionsPublisherTest, WhatTheControllersCannotDoTheMenusCannot)
{
    open({});
    EXPECT_EQ(actions().canRunLive, view->liveRun().canRunLive());
    EXPECT_EQ(actions().canRecord, view->recordActions().canRecord());
    EXPECT_EQ(actions().canPickLocation, view->pickLocation().canPickLocation());
    view->backdrop().setLiveMissing("no");
    view->backdrop().setRecordingMissing("no");
    EXPECT_FALSE(actions().canToggleLive);
    EXPECT_FALSE(actions().canRecordingBackdrop);
}

TEST_F(MenuActionsPublisherTest, RunningAndRecordingSayWhyNotInTheStatusLine)
{
    desktop.input().setMissing("No input here.");
    desktop.tap().setMissing("No listening here.");
    open({stepOf(StepKind::click)});
    EXPECT_FALSE(actions().canRunLive);
    actions().runLive();
    EXPECT_EQ(view->statusLine().message(), "No input here.");
    EXPECT_FALSE(actions().canRecord);
    actions().record();
    EXPECT_EQ(view->statusLine().message(), "No listening here.");
}

TEST_F(MenuActionsPublisherTest, OnlyADemoOfOneAppCanBeRecordedByItsWindow)
{
    open({stepOf(StepKind::switchApp, "Invoices"), stepOf(StepKind::switchApp, "Invoices")});
    EXPECT_TRUE(actions().windowRecordingAvailable);
    project.setSteps(
        {stepOf(StepKind::switchApp, "Invoices"), stepOf(StepKind::switchApp, "Mail")});
    EXPECT_FALSE(actions().windowRecordingAvailable);
}

TEST_F(MenuActionsPublisherTest, WhereTheScreenCannotBeCapturedNoWindowCanBeRecorded)
{
    desktop.capture().setMissing("No screen here.");
    open({stepOf(StepKind::switchApp, "Invoices")});
    EXPECT_FALSE(actions().windowRecordingAvailable);
}

TEST_F(MenuActionsPublisherTest, RecordingChoicesReachEveryOpenEditorAtOnce)
{
    open({});
    Project otherProject;
    ContentView other(otherProject, desktop, settings, apps);
    const auto &inOther = other.menuActions().menuActions();
    actions().setRecordMode(RecordMode::screen);
    EXPECT_EQ(stored.value("recordMode"), "screen");
    EXPECT_EQ(actions().recordMode, RecordMode::screen);
    EXPECT_EQ(inOther->recordMode, RecordMode::screen);
    inOther->setRecordCursor(false);
    EXPECT_FALSE(actions().recordCursor);
    EXPECT_FALSE(inOther->recordCursor);
}

} // namespace velvane
