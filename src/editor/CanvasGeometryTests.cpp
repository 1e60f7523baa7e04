#include "editor/CanvasGeometry.h"

#include "editor/CanvasPan.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

constexpr QSizeF canvas(1920, 1080);
constexpr QSizeF view(960, 600);

} // namespace

TEST(CanvasGeometry, ACanvasOfTwiceTheWidthIsDrawnAtHalfScaleAndCentred)
{
    const CanvasGeometry geometry(canvas, view);
    EXPECT_EQ(geometry.scale(), 0.5);
    EXPECT_EQ(geometry.drawRect(), QRectF(0, 30, 960, 540));
}

TEST(CanvasGeometry, MagnifiedItIsDrawnAtScaleTwoWithTheFocusAtTheCentre)
{
    const CanvasGeometry geometry(canvas, view, {100, 200}, {});
    EXPECT_EQ(geometry.scale(), 2);
    EXPECT_EQ(geometry.toView({100, 200}), QPointF(480, 300));
    EXPECT_EQ(geometry.drawRect(), QRectF(480 - 200, 300 - 400, 3840, 2160));
}

TEST(CanvasGeometry, PanningMovesTheMagnifiedCanvas)
{
    const CanvasGeometry geometry(canvas, view, {100, 200}, {7, -11});
    EXPECT_EQ(geometry.toView({100, 200}), QPointF(487, 289));
}

TEST(CanvasGeometry, ANarrowViewLeavesRoomAboveAndAWideOneBeside)
{
    EXPECT_EQ(CanvasGeometry({100, 100}, {50, 80}).drawRect(), QRectF(0, 15, 50, 50));
    EXPECT_EQ(CanvasGeometry({100, 100}, {80, 50}).drawRect(), QRectF(15, 0, 50, 50));
}

TEST(CanvasGeometry, ASmallCanvasIsEnlarged)
{
    EXPECT_EQ(CanvasGeometry({100, 50}, {400, 400}).scale(), 4);
}

TEST(CanvasGeometry, PointsGoThereAndBack)
{
    for (const CanvasGeometry &geometry :
         {CanvasGeometry(canvas, view), CanvasGeometry(canvas, view, {3, 4}, {50, 60})}) {
        for (const QPointF point : {QPointF(0, 0), QPointF(1920, 1080), QPointF(-5, 17.5)})
            EXPECT_EQ(geometry.toDemo(geometry.toView(point)), point);
    }
}

TEST(CanvasGeometry, AnEmptyCanvasIsDrawnNowhere)
{
    for (const QSizeF size : {QSizeF(0, 100), QSizeF(100, 0), QSizeF(-1, 5)}) {
        const CanvasGeometry geometry(size, view);
        EXPECT_EQ(geometry.drawRect(), QRectF(0, 0, 0, 0));
        EXPECT_EQ(geometry.toDemo({5, 5}), QPointF(0, 0));
        EXPECT_FALSE(geometry.contains({0, 0}));
    }
}

TEST(CanvasGeometry, InAViewWithoutRoomNothingIsHit)
{
    const CanvasGeometry geometry(canvas, {-10, 20});
    EXPECT_EQ(geometry.scale(), 0);
    EXPECT_FALSE(geometry.contains(geometry.toDemo({0, 0})));
}

TEST(CanvasGeometry, TheEdgesAreOnTheCanvasAndTheLetterboxIsNot)
{
    const CanvasGeometry geometry(canvas, view);
    EXPECT_TRUE(geometry.contains(geometry.toDemo({0, 30})));
    EXPECT_TRUE(geometry.contains(geometry.toDemo({960, 570})));
    EXPECT_FALSE(geometry.contains(geometry.toDemo({480, 29})));
    EXPECT_FALSE(geometry.contains(geometry.toDemo({480, 571})));
}

TEST(CanvasGeometry, PointsAreMadeWholeAndKeptOnTheCanvas)
{
    EXPECT_EQ(wholeAndInside({10.5, 20.4}, canvas), QPointF(11, 20));
    EXPECT_EQ(wholeAndInside({-3, 2000}, canvas), QPointF(0, 1080));
    EXPECT_EQ(wholeAndInside({5000, -0.4}, canvas), QPointF(1920, 0));
}

TEST(CanvasGeometry, FourPointsOfMovementAreAClickAndFiveAreNot)
{
    EXPECT_TRUE(isClick({0, 0}));
    EXPECT_TRUE(isClick({2, -2}));
    EXPECT_TRUE(isClick({-4, 0}));
    EXPECT_FALSE(isClick({3, 2}));
    EXPECT_FALSE(isClick({0, -5}));
}

TEST(FocusPoint, IsTheSelectedMovesTargetElseTheCentre)
{
    Project project;
    project.setSteps({Step{.point = {12, 34}}, Step{.kind = StepKind::click}});
    EXPECT_EQ(focusPoint(project), QPointF(640, 400));
    project.setSelection(project.steps()[0].id);
    EXPECT_EQ(focusPoint(project), QPointF(12, 34));
    project.setSelection(project.steps()[1].id);
    EXPECT_EQ(focusPoint(project), QPointF(640, 400));
    project.setSelection(QUuid::createUuid());
    EXPECT_EQ(focusPoint(project), QPointF(640, 400));
}

TEST(CanvasPan, MagnifiedADragPansAndTheNextGoesOnFromThere)
{
    CanvasPan pan;
    pan.setMagnify(true);
    pan.beginDrag();
    pan.drag({2, 2});
    EXPECT_EQ(pan.offset(), QPointF(0, 0));
    pan.drag({3, 2});
    pan.drag({10, -5});
    EXPECT_EQ(pan.offset(), QPointF(10, -5));
    pan.beginDrag();
    pan.drag({5, 5});
    EXPECT_EQ(pan.offset(), QPointF(15, 0));
}

TEST(CanvasPan, UnmagnifiedADragDoesNothing)
{
    CanvasPan pan;
    pan.beginDrag();
    pan.drag({100, 100});
    EXPECT_EQ(pan.offset(), QPointF(0, 0));
}

TEST(CanvasPan, TheWheelPansWhileMagnifiedAndHovered)
{
    CanvasPan pan;
    EXPECT_FALSE(pan.wheel({1, 2}));
    pan.setMagnify(true);
    EXPECT_FALSE(pan.wheel({1, 2}));
    pan.setHovering(true);
    EXPECT_TRUE(pan.wheel({1, 2}));
    EXPECT_TRUE(pan.wheel({10, 20}));
    EXPECT_EQ(pan.offset(), QPointF(11, 22));
    pan.setMagnify(false);
    EXPECT_FALSE(pan.wheel({1, 2}));
    EXPECT_EQ(pan.offset(), QPointF(11, 22));
}

TEST(CanvasPan, ADragAfterTheWheelDoesNotJump)
{
    CanvasPan pan;
    pan.setMagnify(true);
    pan.setHovering(true);
    pan.wheel({30, 40});
    pan.beginDrag();
    pan.drag({10, 10});
    EXPECT_EQ(pan.offset(), QPointF(40, 50));
}

} // namespace velvane
