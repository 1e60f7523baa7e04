#include "capture/RecordActionsFixture.h"

#include <QEventLoop>

namespace velvane {

TEST_F(RecordActionsFixture, ActionsBecomeStepsAfterTheExistingOnesInOneUndoableEdit)
{
    Step wait;
    wait.kind = StepKind::wait;
    Step other = wait;
    other.id = QUuid::createUuid();
    project.setSteps(project.steps() + QList<Step>{wait, other});
    undo.clear();
    const QList<Step> before = project.steps();
    project.setSelection(before.constFirst().id);
    clickAt(3s);
    at(4s, [this] { desktop.press(8, Modifier::command); });
    pressEscapeAt(5s);
    record();
    ASSERT_EQ(project.steps().size(), before.size() + 2);
    EXPECT_EQ(project.steps().first(before.size()), before);
    EXPECT_EQ(project.steps()[3].kind, StepKind::click);
    EXPECT_EQ(project.steps()[3].pauseAfter, 1s);
    EXPECT_EQ(project.steps()[4].kind, StepKind::shortcut);
    EXPECT_EQ(project.selection(), project.steps().constLast().id);
    EXPECT_EQ(reported, QStringList({"Recorded 2 steps."}));
    EXPECT_EQ(controller.outcome(), RecordActionsController::Outcome::recorded);
    ASSERT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Record Actions");
    undo.undo();
    EXPECT_EQ(project.steps(), before);
}

TEST_F(RecordActionsFixture, OneStepIsSaidInTheSingular)
{
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
}

TEST_F(RecordActionsFixture, UndoBringsBackTheRecordingBeforeIt)
{
    project.setRecordingBookmark(QByteArray("an older movie"));
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_FALSE(project.recordingBookmark());
    undo.undo();
    EXPECT_EQ(project.recordingBookmark(), QByteArray("an older movie"));
}

TEST_F(RecordActionsFixture, TheStoryTakesItsTime)
{
    QStringList told;
    for (const Seconds time : {0.1s, 0.5s, 1.2s, 1.9s, 2.6s})
        at(time, [&] { told << panelText(); });
    at(0.1s, [this] { EXPECT_TRUE(desktop.shell().hidden()); });
    at(2.4s, [this] { EXPECT_FALSE(controller.isRecording()); });
    at(2.6s, [this] { EXPECT_TRUE(controller.isRecording()); });
    pressEscapeAt(3s);
    record();
    EXPECT_EQ(told, QStringList({"", "Recording starts in 3…", "Recording starts in 2…",
                                 "Recording starts in 1…", "● Recording — Esc to stop"}));
    EXPECT_NEAR(now(), 3.1, 0.1);
    EXPECT_FALSE(controller.isRecording());
    EXPECT_FALSE(controller.isBusy());
    EXPECT_EQ(desktop.log(), QStringList({"request accessibility", "hide ourselves",
                                          "unhide ourselves", "activate ourselves"}));
    EXPECT_EQ(ears(), 0);
}

TEST_F(RecordActionsFixture, OffsetsCountFromWhenCapturingBegins)
{
    clickAt(3.5s);
    pressEscapeAt(5s);
    record();
    EXPECT_NEAR(project.steps()[1].recordedOffset->count(), 1.0, 1e-9);
}

TEST_F(RecordActionsFixture, WhatHappensBeforeCapturingIsNoStep)
{
    clickAt(0.2s);
    clickAt(1s);
    clickAt(2.4s);
    pressEscapeAt(3s);
    record();
    EXPECT_EQ(project.steps().size(), 1);
}

TEST_F(RecordActionsFixture, EscapeItselfIsNoStep)
{
    at(3s, [this] { desktop.press(0, 0, "a"); });
    pressEscapeAt(3.5s);
    record();
    ASSERT_EQ(project.steps().size(), 2);
    EXPECT_EQ(project.steps()[1].text, "a");
}

TEST_F(RecordActionsFixture, EscapeInTheCountdownEndsItWithoutCapturing)
{
    clickAt(1.25s);
    pressEscapeAt(1.2s);
    QString panelBefore;
    at(1.0s, [&] { panelBefore = panelText(); });
    bool captured = false;
    QObject::connect(&controller, &RecordActionsController::isRecordingChanged,
                     [&] { captured = true; });
    record();
    EXPECT_EQ(panelBefore, "Recording starts in 3…");
    EXPECT_EQ(panelText(), "") << "the panel has gone";
    EXPECT_FALSE(captured);
    EXPECT_NEAR(now(), 1.25, 0.1);
    EXPECT_EQ(reported, QStringList({"Recording stopped — no actions captured."}));
    EXPECT_EQ(controller.outcome(), RecordActionsController::Outcome::nothing);
    EXPECT_EQ(project.steps().size(), 1);
    EXPECT_EQ(undo.count(), 0);
    EXPECT_FALSE(desktop.shell().hidden());
    EXPECT_EQ(ears(), 0);
}

TEST_F(RecordActionsFixture, WithoutActionsTheDemoStaysAsItIs)
{
    project.setRecordingBookmark(QByteArray("a movie"));
    const DocState before = project.docState();
    pressEscapeAt(4s);
    record();
    EXPECT_TRUE(project.docState() == before);
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(reported, QStringList({"Recording stopped — no actions captured."}));
    EXPECT_TRUE(desktop.shell().active());
}

TEST_F(RecordActionsFixture, ListeningThatIsLostEndsItAndKeepsTheStepsSoFar)
{
    clickAt(3s);
    at(4s, [this] { desktop.tap().lose(); });
    record();
    EXPECT_NEAR(now(), 4.1, 0.1);
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
    EXPECT_EQ(project.steps().size(), 2);
}

TEST_F(RecordActionsFixture, ThePreviewPausesAndWhatIsBeingEditedIsMadePartOfTheDemo)
{
    playback.setTotal(10s);
    playback.play(60);
    bool asked = false;
    QObject::connect(&controller, &RecordActionsController::aboutToRecord, [&] {
        asked = true;
        EXPECT_FALSE(controller.isBusy());
    });
    pressEscapeAt(3s);
    record();
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_TRUE(asked);
}

TEST_F(RecordActionsFixture, TheCommandStopsWhatItStarted)
{
    clickAt(3s);
    at(4s, [this] {
        EXPECT_TRUE(controller.canRecord());
        controller.recordActions();
    });
    record();
    EXPECT_NEAR(now(), 4.1, 0.1);
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
}

TEST_F(RecordActionsFixture, WhileBusyASecondRecordingIsNone)
{
    at(1s, [this] {
        const auto second = controller.record();
        EXPECT_EQ(desktop.tap().listeners(), 1);
    });
    pressEscapeAt(3s);
    record();
    EXPECT_EQ(reported.size(), 1);
}

TEST_F(RecordActionsFixture, OneRecordingAfterAnotherIsTwoEdits)
{
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    clickAt(8s);
    pressEscapeAt(9s);
    record();
    EXPECT_EQ(project.steps().size(), 3);
    EXPECT_EQ(undo.count(), 2);
}

TEST_F(RecordActionsFixture, AClosingWindowEndsItFirst)
{
    EXPECT_FALSE(controller.cancelThen(&controller, [] {}));
    int again = 0;
    clickAt(3s);
    at(4s, [&] { EXPECT_TRUE(controller.cancelThen(&controller, [&] { ++again; })); });
    record();
    EXPECT_EQ(again, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(again, 1);
    EXPECT_EQ(project.steps().size(), 2);
}

TEST_F(RecordActionsFixture, ACollapsedSectionOpensForTheStepsItGets)
{
    Step section;
    section.kind = StepKind::section;
    section.collapsed = true;
    project.setSteps({section});
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_FALSE(project.steps()[0].collapsed);
}

TEST_F(RecordActionsFixture, WhatItHasSoFarCanBeHadBeforeItEnds)
{
    const qsizetype before = project.steps().size();
    at(2s, [&] { EXPECT_EQ(controller.stateSoFar(), project.docState()); });
    clickAt(3s);
    at(3.5s, [&] { desktop.press(0, 0, "a"); });
    at(4s, [&] {
        const QList<Step> soFar = controller.stateSoFar().steps;
        ASSERT_EQ(soFar.size(), before + 2);
        EXPECT_EQ(soFar.constLast().text, "a");
        EXPECT_EQ(project.steps().size(), before);
    });
    at(4.5s, [&] { desktop.press(0, 0, "b"); });
    pressEscapeAt(5s);
    record();
    ASSERT_EQ(project.steps().size(), before + 2);
    EXPECT_EQ(project.steps().constLast().text, "ab");
    EXPECT_EQ(controller.stateSoFar(), project.docState());
}

} // namespace velvane
