#include "support/CanvasStage.h"

#include "support/Pixels.h"
#include "support/Print.h"

#include <QMimeData>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QList<Step> twoMoves{{.point = {400, 400}}, {.point = {1200, 800}}};

} // namespace

TEST(PreviewCanvasInput, AClickAddsAWaypointAtItsDemoPoint)
{
    CanvasStage stage;
    stage.click({120, 150});
    ASSERT_EQ(stage.project.steps().size(), 1);
    EXPECT_EQ(stage.step(0).point, QPointF(200, 200));
    EXPECT_EQ(stage.status.message(), "Added waypoint at (200, 200).");
}

TEST(PreviewCanvasInput, FourPointsOfMovementAreAClickAndFiveAreNothing)
{
    CanvasStage stage;
    stage.drag({120, 150}, {122, 152});
    EXPECT_EQ(stage.project.steps().size(), 1);
    stage.drag({120, 250}, {123, 252});
    EXPECT_EQ(stage.project.steps().size(), 1);
}

TEST(PreviewCanvasInput, MagnifiedFivePointsOfMovementPan)
{
    CanvasStage stage;
    stage.controller.setMagnify(true);
    stage.drag({120, 150}, {123, 152});
    EXPECT_EQ(stage.controller.pan().offset(), QPointF(3, 2));
    stage.drag({120, 150}, {220, 150});
    EXPECT_EQ(stage.controller.pan().offset(), QPointF(103, 2));
    EXPECT_TRUE(stage.project.steps().isEmpty());
}

TEST(PreviewCanvasInput, AClickInTheLetterboxAddsNothing)
{
    CanvasStage stage;
    stage.click({500, 40});
    stage.click({10, 300});
    EXPECT_TRUE(stage.project.steps().isEmpty());
    stage.click({20, 50});
    EXPECT_EQ(stage.project.steps().size(), 1);
}

TEST(PreviewCanvasInput, OnlyTheLeftButtonClicks)
{
    CanvasStage stage;
    stage.press({120, 150}, Qt::RightButton);
    stage.release({120, 150}, Qt::RightButton);
    EXPECT_TRUE(stage.project.steps().isEmpty());
}

TEST(PreviewCanvasInput, AClickTakesTheFocusAndAPanDoesNot)
{
    CanvasStage stage;
    QWidget window;
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    stage.canvas.setParent(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    other.setFocus();
    stage.drag({120, 150}, {220, 150});
    EXPECT_FALSE(stage.canvas.hasFocus());
    stage.click({120, 150});
    EXPECT_TRUE(stage.canvas.hasFocus());
    stage.canvas.setParent(nullptr);
}

TEST(PreviewCanvasInput, PressingAMarkerSelectsItsMoveAndAddsNothing)
{
    CanvasStage stage(twoMoves);
    stage.click({220, 250});
    EXPECT_EQ(stage.project.selection(), stage.step(0).id);
    EXPECT_EQ(stage.project.steps().size(), 2);
    EXPECT_EQ(stage.step(0).point, QPointF(400, 400));
    EXPECT_EQ(stage.undo.count(), 0);
}

TEST(PreviewCanvasInput, ADraggedMarkerMovesItsTargetLiveAsOneEntry)
{
    CanvasStage stage(twoMoves);
    stage.press({220, 250});
    stage.move({225, 250});
    stage.move({230, 260});
    EXPECT_EQ(stage.step(0).point, QPointF(420, 420));
    stage.move({240, 260});
    stage.release({240, 260});
    EXPECT_EQ(stage.step(0).point, QPointF(440, 420));
    ASSERT_EQ(stage.undo.count(), 1);
    EXPECT_EQ(stage.undo.undoText(), "Move Target");
    stage.undo.undo();
    EXPECT_EQ(stage.step(0).point, QPointF(400, 400));
}

TEST(PreviewCanvasInput, AMarkerStopsAtTheCanvasesEdges)
{
    CanvasStage stage(twoMoves);
    stage.drag({220, 250}, {-500, -500});
    EXPECT_EQ(stage.step(0).point, QPointF(0, 0));
    stage.drag({20, 50}, {5000, 5000});
    EXPECT_EQ(stage.step(0).point, QPointF(1920, 1080));
}

TEST(PreviewCanvasInput, EscapePutsADraggedMarkerBack)
{
    CanvasStage stage(twoMoves);
    stage.press({220, 250});
    stage.move({300, 300});
    EXPECT_TRUE(stage.key(Qt::Key_Escape));
    stage.move({310, 310});
    stage.release({310, 310});
    EXPECT_EQ(stage.step(0).point, QPointF(400, 400));
    EXPECT_EQ(stage.project.steps().size(), 2);
    EXPECT_EQ(stage.undo.count(), 0);
}

TEST(PreviewCanvasInput, TheStartPointIsDraggedWhileNoStepIsSelected)
{
    CanvasStage stage(twoMoves);
    stage.drag({500, 320}, {510, 330});
    EXPECT_EQ(stage.project.startPoint(), QPointF(980, 560));
    EXPECT_EQ(stage.undo.undoText(), "Move Start");
    EXPECT_EQ(stage.project.steps().size(), 2);
}

TEST(PreviewCanvasInput, TheWheelPansWhileMagnifiedAndHovered)
{
    CanvasStage stage;
    EXPECT_FALSE(stage.wheel({7, -9}));
    stage.controller.setMagnify(true);
    EXPECT_FALSE(stage.wheel({7, -9}));
    stage.enter();
    EXPECT_TRUE(stage.wheel({7, -9}));
    EXPECT_EQ(stage.controller.pan().offset(), QPointF(7, -9));
}

TEST(PreviewCanvasInput, AWheelWithNotchesPansToo)
{
    CanvasStage stage;
    stage.controller.setMagnify(true);
    stage.enter();
    EXPECT_TRUE(stage.wheel({}, {0, -120}));
    EXPECT_EQ(stage.controller.pan().offset(), QPointF(0, -60));
    EXPECT_TRUE(stage.wheel({}, {0, -120}, Qt::ShiftModifier));
    EXPECT_EQ(stage.controller.pan().offset(), QPointF(-60, -60));
}

TEST(PreviewCanvasInput, LeavingTheCanvasEndsHovering)
{
    CanvasStage stage;
    stage.controller.setMagnify(true);
    stage.enter();
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&stage.canvas, &leave);
    EXPECT_FALSE(stage.wheel({7, -9}));
}

TEST(PreviewCanvasInput, ArrowKeysNudgeTheSelectedTarget)
{
    CanvasStage stage(twoMoves);
    stage.project.setSelection(stage.step(0).id);
    EXPECT_TRUE(stage.key(Qt::Key_Right));
    EXPECT_TRUE(stage.key(Qt::Key_Down, Qt::ShiftModifier));
    EXPECT_TRUE(stage.key(Qt::Key_Left, Qt::KeypadModifier));
    EXPECT_EQ(stage.step(0).point, QPointF(400, 410));
    stage.fields.commitOpenGesture();
    EXPECT_EQ(stage.undo.count(), 1);
    EXPECT_EQ(stage.undo.undoText(), "Nudge Target");
}

TEST(PreviewCanvasInput, ArrowKeysWithoutASelectedMoveOrWithOtherModifiersArePassedOn)
{
    CanvasStage stage(twoMoves);
    EXPECT_FALSE(stage.key(Qt::Key_Right));
    stage.project.setSelection(stage.step(0).id);
    EXPECT_FALSE(stage.key(Qt::Key_Right, Qt::ControlModifier));
    EXPECT_EQ(stage.step(0).point, QPointF(400, 400));
}

TEST(PreviewCanvasInput, ALostFocusEndsARunOfNudges)
{
    CanvasStage stage(twoMoves);
    stage.project.setSelection(stage.step(0).id);
    stage.key(Qt::Key_Right);
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&stage.canvas, &out);
    stage.key(Qt::Key_Right);
    stage.fields.commitOpenGesture();
    EXPECT_EQ(stage.undo.count(), 2);
}

TEST(PreviewCanvasInput, DeleteDeletesTheSelectedSteps)
{
    CanvasStage stage(twoMoves);
    stage.project.setSelection(stage.step(0).id);
    EXPECT_TRUE(stage.key(Qt::Key_Delete));
    ASSERT_EQ(stage.project.steps().size(), 1);
    EXPECT_EQ(stage.step(0).point, QPointF(1200, 800));
    EXPECT_EQ(stage.undo.undoText(), "Delete Step");
    EXPECT_TRUE(stage.key(Qt::Key_Backspace));
    EXPECT_TRUE(stage.project.steps().isEmpty());
}

TEST(PreviewCanvasInput, ZTogglesTheMagnifier)
{
    CanvasStage stage;
    EXPECT_TRUE(stage.key(Qt::Key_Z));
    EXPECT_TRUE(stage.controller.magnify());
    EXPECT_TRUE(stage.key(Qt::Key_Z));
    EXPECT_FALSE(stage.controller.magnify());
    EXPECT_FALSE(stage.key(Qt::Key_Z, Qt::ControlModifier));
    EXPECT_FALSE(stage.controller.magnify());
}

TEST(PreviewCanvasInput, SpaceIsLeftToTheWindow)
{
    CanvasStage stage;
    EXPECT_FALSE(stage.key(Qt::Key_Space));
}

TEST(PreviewCanvasInput, ThePointersShapeTellsWhatAPressWouldDo)
{
    CanvasStage stage(twoMoves);
    stage.hover({300, 300});
    EXPECT_EQ(stage.canvas.cursor().shape(), Qt::CrossCursor);
    stage.hover({220, 250});
    EXPECT_EQ(stage.canvas.cursor().shape(), Qt::OpenHandCursor);
    stage.press({220, 250});
    EXPECT_EQ(stage.canvas.cursor().shape(), Qt::ClosedHandCursor);
    stage.release({220, 250});
    EXPECT_EQ(stage.canvas.cursor().shape(), Qt::OpenHandCursor);
    stage.hover({10, 10});
    EXPECT_EQ(stage.canvas.cursor().shape(), Qt::ArrowCursor);
}

} // namespace velvane
