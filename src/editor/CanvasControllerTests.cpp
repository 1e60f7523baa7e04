#include "editor/CanvasController.h"

#include "editor/FieldEditing.h"
#include "model/StepList.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class CanvasControllerTest : public testing::Test {
protected:
    CanvasControllerTest()
    {
        project.setSteps(
            {Step{.point = {10, 20}}, Step{.kind = StepKind::click}, Step{.point = {100.5, 200}}});
        project.setUndoManager(&undo);
    }

    const Step &step(int index) const { return project.steps()[index]; }

    Project project;
    QUndoStack undo;
    StatusLine status;
    FieldEditing fields{project};
    CanvasController canvas{project, status, fields.gesture()};
};

} // namespace

TEST_F(CanvasControllerTest, AClickAppendsAWaypointAtTheRoundedPoint)
{
    canvas.handleCanvasClick({300.5, 400.4});
    ASSERT_EQ(project.steps().size(), 4);
    EXPECT_EQ(step(3).kind, StepKind::move);
    EXPECT_EQ(step(3).point, QPointF(301, 400));
    EXPECT_EQ(step(3).duration, 1.0s);
    EXPECT_EQ(step(3).pauseAfter, 0.3s);
    EXPECT_EQ(undo.undoText(), "Add Waypoint");
    EXPECT_EQ(status.message(), "Added waypoint at (301, 400).");
}

TEST_F(CanvasControllerTest, AWaypointIsNotSelectedSoThatTheNextClickAddsAnother)
{
    canvas.handleCanvasClick({1, 2});
    canvas.handleCanvasClick({3, 4});
    EXPECT_EQ(project.steps().size(), 5);
    EXPECT_FALSE(project.selection());
}

TEST_F(CanvasControllerTest, WithAMoveSelectedAClickMovesItsTarget)
{
    project.setSelection(step(0).id);
    canvas.handleCanvasClick({300.5, 400.4});
    EXPECT_EQ(project.steps().size(), 3);
    EXPECT_EQ(step(0).point, QPointF(301, 400));
    EXPECT_EQ(undo.undoText(), "Move Target");
    EXPECT_EQ(status.message(), "");
}

TEST_F(CanvasControllerTest, WithAnotherStepSelectedAClickAppends)
{
    project.setSelection(step(1).id);
    canvas.handleCanvasClick({1, 2});
    EXPECT_EQ(project.steps().size(), 4);
    EXPECT_EQ(step(3).point, QPointF(1, 2));
}

TEST_F(CanvasControllerTest, ArrowsNudgeByOneOrTen)
{
    project.setSelection(step(0).id);
    EXPECT_TRUE(canvas.arrowNudge(Qt::Key_Right, false));
    EXPECT_TRUE(canvas.arrowNudge(Qt::Key_Down, true));
    EXPECT_EQ(step(0).point, QPointF(11, 30));
    canvas.arrowNudge(Qt::Key_Left, true);
    canvas.arrowNudge(Qt::Key_Up, false);
    EXPECT_EQ(step(0).point, QPointF(1, 29));
}

TEST_F(CanvasControllerTest, ARunOfNudgesIsOneEntryThatASecondOfRestEnds)
{
    project.setSelection(step(0).id);
    for (int i = 0; i < 5; ++i)
        canvas.arrowNudge(Qt::Key_Right, false);
    EXPECT_EQ(undo.count(), 0);
    canvas.tick();
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Nudge Target");
    canvas.arrowNudge(Qt::Key_Right, false);
    canvas.tick();
    EXPECT_EQ(undo.count(), 2);
    undo.undo();
    undo.undo();
    EXPECT_EQ(step(0).point, QPointF(10, 20));
}

TEST_F(CanvasControllerTest, LosingTheFocusEndsARunOfNudges)
{
    project.setSelection(step(0).id);
    canvas.arrowNudge(Qt::Key_Right, false);
    canvas.endNudges();
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(CanvasControllerTest, AnotherSelectionEndsARunOfNudges)
{
    project.setSelection(step(0).id);
    canvas.arrowNudge(Qt::Key_Right, false);
    project.setSelection(step(2).id);
    EXPECT_EQ(undo.count(), 1);
    canvas.arrowNudge(Qt::Key_Right, false);
    canvas.tick();
    EXPECT_EQ(undo.count(), 2);
    EXPECT_EQ(step(2).point, QPointF(101.5, 200));
}

TEST_F(CanvasControllerTest, AnotherEditEndsARunOfNudges)
{
    project.setSelection(step(0).id);
    canvas.arrowNudge(Qt::Key_Right, false);
    StepList::addStep(project, StepKind::wait);
    EXPECT_EQ(undo.count(), 2);
    undo.undo();
    EXPECT_EQ(step(0).point, QPointF(11, 20));
}

TEST_F(CanvasControllerTest, EndingNudgesLeavesAFieldsGestureOpen)
{
    project.setSelection(step(0).id);
    fields.setText("typed");
    canvas.endNudges();
    EXPECT_TRUE(fields.gesture().isOpen());
}

TEST_F(CanvasControllerTest, NothingIsNudgedWithoutAMoveOrByOtherKeys)
{
    EXPECT_FALSE(canvas.arrowNudge(Qt::Key_Right, false));
    project.setSelection(step(1).id);
    EXPECT_FALSE(canvas.arrowNudge(Qt::Key_Right, false));
    project.setSelection(step(0).id);
    EXPECT_FALSE(canvas.arrowNudge(Qt::Key_A, false));
    canvas.tick();
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(CanvasControllerTest, AMarkersDragIsOneEntry)
{
    canvas.beginMarkerDrag(step(0).id);
    EXPECT_EQ(canvas.draggedMove(), step(0).id);
    canvas.drag({10, 0}, 0.5);
    EXPECT_EQ(step(0).point, QPointF(30, 20));
    canvas.drag({20, -5}, 0.5);
    EXPECT_EQ(step(0).point, QPointF(50, 10));
    canvas.endDrag();
    EXPECT_FALSE(canvas.isDragging());
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Move Target");
    undo.undo();
    EXPECT_EQ(step(0).point, QPointF(10, 20));
}

TEST_F(CanvasControllerTest, ADraggedPointIsWhole)
{
    canvas.beginMarkerDrag(step(2).id);
    canvas.drag({5, 1}, 3);
    EXPECT_EQ(step(2).point, QPointF(102, 200));
}

TEST_F(CanvasControllerTest, AMarkerDraggedPastTheEdgeStopsThere)
{
    canvas.beginMarkerDrag(step(0).id);
    canvas.drag({-5000, 5000}, 0.5);
    EXPECT_EQ(step(0).point, QPointF(0, 800));
    canvas.drag({5000, -5000}, 0.5);
    EXPECT_EQ(step(0).point, QPointF(1280, 0));
    canvas.endDrag();
}

TEST_F(CanvasControllerTest, APressOnAMarkerSelectsAndMovesNothing)
{
    canvas.beginMarkerDrag(step(2).id);
    canvas.drag({2, 2}, 0.5);
    canvas.endDrag();
    EXPECT_EQ(project.selection(), step(2).id);
    EXPECT_EQ(step(2).point, QPointF(100.5, 200));
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(CanvasControllerTest, ADragThatIsGivenUpPutsThePointBack)
{
    canvas.beginMarkerDrag(step(2).id);
    canvas.drag({50, 50}, 1);
    canvas.cancelDrag();
    EXPECT_EQ(step(2).point, QPointF(100.5, 200));
    EXPECT_FALSE(canvas.isDragging());
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(CanvasControllerTest, OnlyMovesHaveMarkersToDrag)
{
    canvas.beginMarkerDrag(step(1).id);
    canvas.beginMarkerDrag(QUuid::createUuid());
    EXPECT_FALSE(canvas.isDragging());
    canvas.drag({50, 50}, 1);
    canvas.endDrag();
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(CanvasControllerTest, ADragIsNoPartOfWhatWasTypedBefore)
{
    project.setSelection(step(0).id);
    fields.setFocusedField(Field{.kind = Field::Kind::x});
    fields.setNumber({.kind = Field::Kind::x}, 15);
    canvas.beginMarkerDrag(step(0).id);
    canvas.drag({10, 0}, 1);
    canvas.endDrag();
    EXPECT_EQ(undo.count(), 2);
    undo.undo();
    EXPECT_EQ(step(0).point, QPointF(15, 20));
}

TEST_F(CanvasControllerTest, AnEditInTheMiddleOfADragEndsIt)
{
    int changes = 0;
    QObject::connect(&canvas, &CanvasController::draggingChanged, [&] { ++changes; });
    canvas.beginMarkerDrag(step(0).id);
    canvas.drag({10, 0}, 1);
    StepList::deleteStep(project, step(0).id);
    EXPECT_FALSE(canvas.isDragging());
    EXPECT_EQ(changes, 2);
    canvas.drag({99, 99}, 1);
    EXPECT_EQ(undo.count(), 2);
    undo.undo();
    EXPECT_EQ(step(0).point, QPointF(20, 20));
}

TEST_F(CanvasControllerTest, TheStartPointIsDraggedInOneEntry)
{
    canvas.beginStartDrag();
    EXPECT_TRUE(canvas.isDragging());
    EXPECT_FALSE(canvas.draggedMove());
    canvas.drag({10, 10}, 0.5);
    canvas.drag({-20, 10}, 0.5);
    canvas.endDrag();
    EXPECT_EQ(project.startPoint(), QPointF(600, 420));
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Move Start");
}

TEST_F(CanvasControllerTest, WithoutAScaleNothingIsDragged)
{
    canvas.beginMarkerDrag(step(0).id);
    canvas.drag({10, 10}, 0);
    canvas.endDrag();
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(CanvasControllerTest, TheMagnifierGoesOnAndOff)
{
    int changes = 0;
    QObject::connect(&canvas, &CanvasController::magnifyChanged, [&] { ++changes; });
    canvas.toggleMagnify();
    EXPECT_TRUE(canvas.magnify());
    EXPECT_TRUE(canvas.pan().magnify());
    canvas.setMagnify(true);
    canvas.toggleMagnify();
    EXPECT_FALSE(canvas.magnify());
    EXPECT_EQ(changes, 2);
}

} // namespace velvane
