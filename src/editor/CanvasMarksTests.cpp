#include "editor/CanvasMarks.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QRectF view(0, 0, 1000, 600);
const CanvasGeometry atScaleOne({1000, 600}, {1000, 600});

Step moveTo(QPointF point)
{
    return {.point = point};
}

Step action(StepKind kind)
{
    return {.kind = kind};
}

CanvasMarks marksOf(const QList<Step> &steps, std::optional<QUuid> selected = {})
{
    return CanvasMarks::of(moveGroups(steps), selected, atScaleOne, view);
}

} // namespace

TEST(CanvasMarks, APathJoinsTheTargetsInOrder)
{
    const auto marks = marksOf({moveTo({100, 100}), moveTo({300.5, 200}), moveTo({50, 400})});
    EXPECT_EQ(marks.path, QPolygonF({{100, 100}, {300.5, 200}, {50, 400}}));
}

TEST(CanvasMarks, AMarkerIs24WideAnd28WhenItsMoveIsSelected)
{
    const QList<Step> steps{moveTo({100, 100}), moveTo({300, 200})};
    const auto marks = marksOf(steps, steps[0].id);
    ASSERT_EQ(marks.markers.size(), 2);
    EXPECT_EQ(marks.markers[0].rect(), QRectF(288, 188, 24, 24));
    EXPECT_EQ(marks.markers[1].rect(), QRectF(86, 86, 28, 28));
    EXPECT_EQ(marks.markers[1].number, "1");
}

TEST(CanvasMarks, MarkersKeepTheirSizeAtAnyZoom)
{
    const CanvasGeometry magnified({1000, 600}, {1000, 600}, {500, 300}, {0, 0});
    const auto marks = CanvasMarks::of(moveGroups({moveTo({510, 300})}), {}, magnified, view);
    ASSERT_EQ(marks.markers.size(), 1);
    EXPECT_EQ(marks.markers[0].rect(), QRectF(528, 288, 24, 24));
}

TEST(CanvasMarks, NumbersCountAllStepsButSections)
{
    const auto marks = marksOf({action(StepKind::section), action(StepKind::click),
                                moveTo({100, 100}), action(StepKind::section), moveTo({200, 100})});
    ASSERT_EQ(marks.markers.size(), 2);
    EXPECT_EQ(marks.markers[0].number, "2");
    EXPECT_EQ(marks.markers[1].number, "3");
}

TEST(CanvasMarks, StepsBeforeTheFirstMoveAreInNoStack)
{
    const auto marks = marksOf({action(StepKind::click), moveTo({100, 100})});
    EXPECT_TRUE(marks.actions.isEmpty());
}

TEST(CanvasMarks, TheStartChipSits26AboveTheFirstTarget)
{
    const auto marks = marksOf({moveTo({100, 100}), moveTo({200, 200})});
    ASSERT_TRUE(marks.startChip);
    EXPECT_EQ(marks.startChip->text, "Start");
    EXPECT_EQ(marks.startChip->rect.height(), 18);
    EXPECT_EQ(marks.startChip->rect.center().y(), 74);
    EXPECT_NEAR(marks.startChip->rect.center().x(), 100, 0.5);
}

TEST(CanvasMarks, TheStartChipStaysInTheView)
{
    const auto marks = marksOf({moveTo({0, 10})});
    EXPECT_EQ(marks.startChip->rect.center().y(), 36);
    EXPECT_EQ(marks.startChip->rect.left(), 0);
}

TEST(CanvasMarks, AStackStandsSixFromItsMarkerAndGoesDown)
{
    const auto marks =
        marksOf({moveTo({100, 100}), action(StepKind::click), action(StepKind::release)});
    ASSERT_EQ(marks.actions.size(), 2);
    EXPECT_EQ(marks.actions[0].rect.topLeft(), QPointF(118, 91));
    EXPECT_EQ(marks.actions[0].rect.height(), 18);
    EXPECT_EQ(marks.actions[0].text, "Click");
    EXPECT_EQ(marks.actions[1].rect.topLeft(), QPointF(118, 111));
}

TEST(CanvasMarks, AStackFlipsWhereItWouldLeaveTheView)
{
    const auto marks = marksOf({moveTo({980, 100}), action(StepKind::click)});
    EXPECT_EQ(marks.actions[0].rect.right(), 962);
}

TEST(CanvasMarks, AStackFlipsWhereItWouldOverlapAnEarlierOne)
{
    const auto marks = marksOf({moveTo({300, 100}), action(StepKind::rightClick),
                                moveTo({300, 110}), action(StepKind::rightClick)});
    ASSERT_EQ(marks.actions.size(), 2);
    EXPECT_EQ(marks.actions[0].rect.left(), 318);
    EXPECT_EQ(marks.actions[1].rect.right(), 282);
}

TEST(CanvasMarks, StacksAreLaidOutFromTheTop)
{
    const auto marks =
        marksOf({moveTo({800, 500}), moveTo({300, 130}), action(StepKind::hold), moveTo({300, 100}),
                 action(StepKind::release), action(StepKind::wait)});
    ASSERT_EQ(marks.actions.size(), 3);
    EXPECT_EQ(marks.actions[0].rect.left(), 318);
    EXPECT_EQ(marks.actions[2].rect.right(), 282);
}

TEST(CanvasMarks, AStackHidesNoMarkerAndNotTheStartChip)
{
    const auto marks = marksOf({moveTo({200, 100}), moveTo({200, 72}), action(StepKind::click),
                                moveTo({400, 300}), action(StepKind::click), moveTo({440, 305})});
    ASSERT_EQ(marks.actions.size(), 2);
    EXPECT_FALSE(marks.actions[0].rect.intersects(marks.startChip->rect));
    EXPECT_EQ(marks.actions[1].rect.right(), 382);
}

TEST(CanvasMarks, AStackAtTheLowerEdgeOfTheViewGrowsUpwards)
{
    const auto marks = marksOf({moveTo({800, 100}), moveTo({300, 585}), action(StepKind::click),
                                action(StepKind::wait), action(StepKind::release)});
    ASSERT_EQ(marks.actions.size(), 3);
    EXPECT_LE(marks.actions[2].rect.bottom(), 600);
    EXPECT_EQ(marks.actions[2].rect.left(), 318);
    EXPECT_LT(marks.actions[0].rect.top(), marks.actions[2].rect.top());
}

TEST(CanvasMarks, AStackFreeOnNeitherSideStaysInTheView)
{
    const auto marks = marksOf({moveTo({30, 100}), action(StepKind::rightClick), moveTo({30, 105}),
                                action(StepKind::rightClick)});
    EXPECT_EQ(marks.actions[1].rect.left(), 48);
}

TEST(CanvasMarks, AStackFreeOnNeitherSideMovesUpOrDown)
{
    const auto marks =
        marksOf({moveTo({300, 100}), action(StepKind::rightClick), moveTo({200, 112}),
                 action(StepKind::wait), moveTo({300, 113}), action(StepKind::rightClick)});
    ASSERT_EQ(marks.actions.size(), 3);
    EXPECT_EQ(marks.actions[0].rect.left(), 318);
    EXPECT_EQ(marks.actions[1].rect.left(), 218);
    EXPECT_EQ(marks.actions[2].rect.topLeft(), QPointF(318, 114));
}

TEST(CanvasMarks, AStackThatFindsNoFreePlaceIsShownAllTheSame)
{
    QList<Step> steps;
    for (int i = 0; i < 12; ++i)
        steps << moveTo({300.0 + i, 300.0 + i}) << action(StepKind::rightClick);
    EXPECT_EQ(marksOf(steps).actions.size(), 12);
}

TEST(CanvasMarks, TheActiveMarkersCapsulesAreKnown)
{
    const QList<Step> steps{moveTo({100, 100}), action(StepKind::click), moveTo({300, 100}),
                            action(StepKind::wait)};
    const auto marks = marksOf(steps, steps[2].id);
    ASSERT_EQ(marks.actions.size(), 2);
    EXPECT_FALSE(marks.actions[0].active);
    EXPECT_TRUE(marks.actions[1].active);
}

TEST(CanvasMarks, MarksOutsideTheViewAreLeftOut)
{
    const CanvasGeometry magnified({1000, 600}, {1000, 600}, {500, 300}, {0, 0});
    const auto marks = CanvasMarks::of(moveGroups({moveTo({10, 10}), action(StepKind::click)}), {},
                                       magnified, view);
    EXPECT_TRUE(marks.markers.isEmpty());
    EXPECT_TRUE(marks.actions.isEmpty());
    EXPECT_FALSE(marks.startChip);
    EXPECT_EQ(marks.path.size(), 1);
}

TEST(CanvasMarks, TheMarkerOnTopIsHit)
{
    const QList<Step> steps{moveTo({100, 100}), moveTo({110, 100})};
    EXPECT_EQ(marksOf(steps).markerAt({105, 100})->id, steps[1].id);
    const auto marks = marksOf(steps, steps[0].id);
    EXPECT_EQ(marks.markerAt({105, 100})->id, steps[0].id);
    EXPECT_EQ(marks.markerAt({105, 130}), nullptr);
}

TEST(CanvasMarks, AMarkersCornersAreNotHit)
{
    EXPECT_EQ(marksOf({moveTo({100, 100})}).markerAt({110, 110}), nullptr);
}

TEST(CanvasMarks, InACrowdOnlyStacksThatHideNothingShowAndTheActiveOne)
{
    QList<Step> steps{moveTo({600, 100}), action(StepKind::click)};
    for (int i = 0; i < 200; ++i)
        steps << moveTo({10.0 + i, 300 + (i % 3) * 4.0}) << action(StepKind::click);
    const auto marks = marksOf(steps, steps[200].id);
    for (const auto &capsule : marks.actions)
        for (const auto &marker : marks.markers)
            EXPECT_TRUE(capsule.active || !marker.rect().intersects(capsule.rect));
    EXPECT_EQ(marks.actions.first().rect.topLeft(), QPointF(618, 91));
    EXPECT_EQ(std::count_if(marks.actions.begin(), marks.actions.end(),
                            [](const auto &capsule) { return capsule.active; }),
              1);
}

} // namespace velvane
