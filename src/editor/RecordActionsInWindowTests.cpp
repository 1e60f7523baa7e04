#include "base/KeyCode.h"
#include "editor/FocusedActions.h"
#include "editor/IconButton.h"
#include "editor/MenuActions.h"
#include "support/EditorFixture.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

namespace velvane {

namespace {

struct RecordActionsInWindow : EditorFixture {
    RecordActionsInWindow()
    {
        project.setCanvasSize({1920, 1080});
        open({stepOf(StepKind::click)});
    }

    void at(Seconds time, const std::function<void()> &call) { desktop.clock().at(time, call); }
    void recordAClick()
    {
        at(3s, [this] {
            for (const auto kind : {InputEvent::Kind::leftMouseDown, InputEvent::Kind::leftMouseUp})
                desktop.tap().hear({.kind = kind, .point = project.startPoint()});
        });
        at(4s, [this] { desktop.press(KeyCode::escape); });
        runToEnd(view->recordActions().record());
    }
    const MenuActions &menus() { return *view->menuActions().menuActions(); }

    TemporaryHome home;
};

} // namespace

TEST_F(RecordActionsInWindow, TheRecordedStepsAreSelectedAndTheStatusLineSaysSo)
{
    recordAClick();
    ASSERT_EQ(project.steps().size(), 2);
    EXPECT_EQ(view->selection().targets(), QSet<QUuid>({step(1).id}));
    EXPECT_EQ(view->statusLine().message(), "Recorded 1 step.");
}

TEST_F(RecordActionsInWindow, AMovieThatBrokeOffIsToldBesideTheSteps)
{
    QImage picture(1920, 1080, QImage::Format_RGB32);
    picture.fill(Qt::red);
    at(2.8s, [this, picture] { desktop.capture().show(picture); });
    at(3.5s, [this] { desktop.capture().end("The display has gone."); });
    recordAClick();
    EXPECT_EQ(view->statusLine().message(), "Recorded 1 step with screen recording. "
                                            "Recording stopped: The display has gone.");
}

TEST_F(RecordActionsInWindow, TheMenusSayThatItRecordsAndStopIt)
{
    QList<bool> states;
    at(3.5s, [&] { states << menus().isRecording << menus().canRecord; });
    recordAClick();
    EXPECT_EQ(states, QList<bool>({true, true}));
    EXPECT_FALSE(menus().isRecording);

    at(9s, [this] { menus().record(); });
    runToEnd(view->recordActions().record());
    EXPECT_EQ(view->statusLine().message(), "Recording stopped — no actions captured.");
}

TEST_F(RecordActionsInWindow, WhatConflictsIsDisabledFromTheCountdownOn)
{
    QList<bool> usable;
    QString runReason;
    QString pickReason;
    at(1s, [&] {
        usable << menus().canRunLive << menus().canPickLocation;
        runReason = view->liveRun().missing();
        pickReason = view->pickLocation().missing();
        // Nor does it start all the same.
        view->liveRun().runLive();
        EXPECT_FALSE(view->liveRun().isBusy());
    });
    recordAClick();
    EXPECT_EQ(usable, QList<bool>({false, false}));
    EXPECT_EQ(runReason, "Actions are being recorded.");
    EXPECT_EQ(pickReason, "Actions are being recorded.");
    EXPECT_TRUE(view->liveRun().canRunLive());
    EXPECT_NE(view->pickLocation().missing(), pickReason);
}

TEST_F(RecordActionsInWindow, WhatIsBeingTypedBecomesPartOfTheDemoFirst)
{
    project.setSelection(step().id);
    view->fieldEditing().setFocusedField(Field{Field::Kind::pause, 0});
    view->fieldEditing().bump(Field{Field::Kind::pause, 0}, 0.5);
    ASSERT_EQ(undo.count(), 0);
    at(1s, [&] { EXPECT_EQ(undo.count(), 1); });
    recordAClick();
    EXPECT_EQ(undo.count(), 2);
}

} // namespace velvane
