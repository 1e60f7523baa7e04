#include "editor/PreviewCanvasAccessible.h"

#include "support/CanvasStage.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QList<Step> twoMoves{{.point = {400, 400}}, {.point = {1200, 800}}};

} // namespace

TEST(PreviewCanvasAccessible, AScreenReaderIsToldTheSelectedTarget)
{
    CanvasStage stage({{.kind = StepKind::click}, {.point = {470, 236}}});
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&stage.canvas);
    ASSERT_TRUE(canvas);
    EXPECT_EQ(canvas->role(), QAccessible::Canvas);
    EXPECT_EQ(canvas->text(QAccessible::Name), "Preview canvas");
    EXPECT_EQ(canvas->text(QAccessible::Value), "");
    stage.project.setSelection(stage.step(1).id);
    EXPECT_EQ(canvas->text(QAccessible::Value), "Target 2 at (470, 236)");
    EXPECT_EQ(canvas->text(QAccessible::Description), "Target 2 at (470, 236)");
}

TEST(PreviewCanvasAccessible, AScreenReaderFindsTheMarkers)
{
    CanvasStage stage({{.kind = StepKind::click}, {.point = {400, 300}}, {.point = {900, 700}}});
    stage.project.setSelection(stage.step(1).id);
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&stage.canvas);
    ASSERT_TRUE(canvas);
    const int widgets = canvas->childCount() - 2;
    // The active marker is on top, so the last.
    QAccessibleInterface *marker = canvas->child(widgets + 1);
    ASSERT_TRUE(marker);
    EXPECT_EQ(marker->text(QAccessible::Name), "Step 2, Move to (400, 300)");
    EXPECT_EQ(marker->rect().size(), QSize(28, 28));
    EXPECT_TRUE(marker->state().selected);
    EXPECT_EQ(canvas->indexOfChild(marker), widgets + 1);
    EXPECT_EQ(canvas->child(widgets)->text(QAccessible::Name), "Step 3, Move to (900, 700)");
    EXPECT_FALSE(canvas->child(widgets)->state().selected);
    EXPECT_EQ(canvas->child(widgets + 2), nullptr);
    const QPoint at = stage.canvas.mapToGlobal(stage.canvas.toWidget({400, 300}).toPoint());
    EXPECT_EQ(canvas->childAt(at.x(), at.y()), marker);
    EXPECT_EQ(marker->parent(), canvas);
}

TEST(PreviewCanvasAccessible, AMarkerThatIsGoneIsNoLongerValidForAScreenReader)
{
    CanvasStage stage(twoMoves);
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&stage.canvas);
    ASSERT_TRUE(canvas);
    QAccessibleInterface *last = canvas->child(canvas->childCount() - 1);
    ASSERT_TRUE(last);
    EXPECT_TRUE(last->isValid());
    stage.project.setSteps({stage.step(0)});
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), "");
}

} // namespace velvane
