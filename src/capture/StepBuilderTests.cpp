#include "capture/StepBuilderFixture.h"

#include <cmath>
#include <limits>

namespace velvane {

using Kinds = QList<StepKind>;

TEST_F(StepBuilderFixture, APressAndReleaseInOnePlaceIsAClick)
{
    click(start);
    EXPECT_EQ(kinds(), Kinds({StepKind::click}));
}

TEST_F(StepBuilderFixture, UpToSixPointsBetweenPressAndReleaseAreAClick)
{
    press(start);
    release(start + QPointF(6, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::click}));
}

TEST_F(StepBuilderFixture, MoreThanSixPointsBetweenPressAndReleaseAreADrag)
{
    press(start);
    // Whole points only: 6.08 is the least beyond 6.
    release(start + QPointF(6, 1));
    ASSERT_EQ(kinds(), Kinds({StepKind::hold, StepKind::move, StepKind::release}));
    EXPECT_EQ(steps()[1].point, start + QPointF(6, 1));
}

TEST_F(StepBuilderFixture, AHundredthMoreThanSixPointsIsADrag)
{
    const auto kindAt = [](double edge) {
        // A place between whole points is one at the canvas's edge.
        StepBuilder made({edge, 800}, start, 0s);
        made.setCapturing(true, 0s);
        made.handle({.kind = Kind::leftMouseDown, .point = start});
        made.handle({.kind = Kind::leftMouseUp, .point = {900, 400}});
        return made.steps().constFirst().kind;
    };
    EXPECT_EQ(kindAt(646.0), StepKind::click);
    EXPECT_EQ(kindAt(646.01), StepKind::hold);
}

TEST_F(StepBuilderFixture, PlacesAreRoundedBeforeTheyAreCompared)
{
    press(start);
    release(start + QPointF(6.4, 0.4));
    press(start);
    release(start + QPointF(6.5, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::click, StepKind::hold, StepKind::move, StepKind::release}));
}

TEST_F(StepBuilderFixture, ADragTakesItsTimeWithinBounds)
{
    const auto durationOf = [this](double distance) {
        press(start);
        release(start + QPointF(distance, 0));
        return steps()[steps().size() - 2].duration.count();
    };
    EXPECT_DOUBLE_EQ(durationOf(450), 0.5);
    EXPECT_DOUBLE_EQ(durationOf(100), 0.3);
    EXPECT_DOUBLE_EQ(durationOf(2000), 1.2);
}

TEST_F(StepBuilderFixture, TheStepsOfADragShareOneOffset)
{
    press(start);
    now += 1s;
    release(start + QPointF(50, 0));
    for (const Step &step : steps())
        EXPECT_EQ(step.recordedOffset, 1s);
}

TEST_F(StepBuilderFixture, AfterADragTheCursorIsWhereItEnded)
{
    press(start);
    release(start + QPointF(50, 0));
    click(start + QPointF(50, 0));
    EXPECT_EQ(steps().size(), 4);
    EXPECT_EQ(steps().last().kind, StepKind::click);
}

TEST_F(StepBuilderFixture, AReleaseWhosePressWasNotHeardIsAClickAndNoMove)
{
    release(start + QPointF(500, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::click}));
}

TEST_F(StepBuilderFixture, AWayToAPressTakesItsTimeWithinBounds)
{
    const auto durationOf = [](double distance) {
        StepBuilder made({6000, 6000}, {0, 0}, 0s);
        made.setCapturing(true, 0s);
        made.handle({.kind = Kind::leftMouseDown, .point = {distance, 0}});
        return made.steps().constFirst().duration.count();
    };
    EXPECT_DOUBLE_EQ(durationOf(110), 0.35);
    EXPECT_DOUBLE_EQ(durationOf(1100), 1.0);
    EXPECT_DOUBLE_EQ(durationOf(5000), 1.5);
}

TEST_F(StepBuilderFixture, AWayOfSixPointsOrLessMakesNoMove)
{
    click(start + QPointF(6, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::click}));
    click(start + QPointF(7, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::click, StepKind::move, StepKind::click}));
}

TEST_F(StepBuilderFixture, AMoveLeadsToWhereTheButtonWentDown)
{
    click({700, 500});
    ASSERT_EQ(kinds(), Kinds({StepKind::move, StepKind::click}));
    EXPECT_EQ(steps()[0].point, QPointF(700, 500));
    // Buttons act where the cursor is.
    EXPECT_EQ(steps()[1].point, QPointF(0, 0));
}

TEST_F(StepBuilderFixture, ARestingPointerIsOneMove)
{
    moveTo({700, 500});
    rest(0.34s);
    EXPECT_TRUE(steps().isEmpty());
    rest(0.01s);
    rest(0.08s);
    rest(10s);
    ASSERT_EQ(kinds(), Kinds({StepKind::move}));
    EXPECT_EQ(steps()[0].point, QPointF(700, 500));
    EXPECT_DOUBLE_EQ(steps()[0].recordedOffset->count(), 0.35);
}

TEST_F(StepBuilderFixture, APointerThatKeepsMovingIsNotAnchored)
{
    for (int i = 0; i < 20; ++i) {
        moveTo({700.0 + 10 * i, 500});
        rest(0.3s);
    }
    EXPECT_TRUE(steps().isEmpty());
}

TEST_F(StepBuilderFixture, APointerThatRestsWithTheButtonDownIsNotAnchored)
{
    press(start);
    hear(Kind::leftMouseDragged, {900, 500});
    rest(2s);
    EXPECT_TRUE(steps().isEmpty());
    release({900, 500});
    EXPECT_EQ(kinds(), Kinds({StepKind::hold, StepKind::move, StepKind::release}));
}

TEST_F(StepBuilderFixture, ARightButtonNeverDrags)
{
    hear(Kind::rightMouseDown, start);
    hear(Kind::rightMouseUp, start + QPointF(300, 0));
    EXPECT_EQ(kinds(), Kinds({StepKind::rightClick}));
}

TEST_F(StepBuilderFixture, ARightPressDoesNotKeepThePointerFromBeingAnchored)
{
    hear(Kind::rightMouseDown, start);
    moveTo({900, 500});
    rest(1s);
    hear(Kind::rightMouseUp, {900, 500});
    EXPECT_EQ(kinds(), Kinds({StepKind::move, StepKind::rightClick}));
}

// Where the pointer rests is known from its motion alone.
TEST_F(StepBuilderFixture, APressWithoutAMotionBeforeItLetsThePointerFallBack)
{
    click({900, 500});
    rest(1s);
    ASSERT_EQ(kinds(), Kinds({StepKind::move, StepKind::click, StepKind::move}));
    EXPECT_EQ(steps()[2].point, start);
}

TEST_F(StepBuilderFixture, StepsHaveTheRecordersDefaults)
{
    rightClick({900, 500});
    ASSERT_EQ(steps().size(), 2);
    Step expected = step(StepKind::rightClick);
    expected.id = steps()[1].id;
    expected.recordedOffset = 0s;
    EXPECT_EQ(steps()[1], expected);
    EXPECT_EQ(expected.pauseAfter, 0.3s);
    EXPECT_NE(steps()[0].id, steps()[1].id);
}

TEST_F(StepBuilderFixture, PlacesOutsideTheCanvasEndAtItsEdge)
{
    click({-300, -200});
    EXPECT_EQ(steps()[0].point, QPointF(0, 0));
    click({9000, 7000});
    EXPECT_EQ(steps()[2].point, QPointF(5000, 5000));
}

TEST_F(StepBuilderFixture, PlacesThatAreNoNumbersStayInside)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    click({std::nan(""), infinity});
    EXPECT_EQ(steps()[0].point, QPointF(0, 5000));
    click({-infinity, std::nan("")});
    EXPECT_EQ(steps()[2].point, QPointF(0, 0));
}

TEST_F(StepBuilderFixture, AnEmptyCanvasCountsAsTheDefaultOne)
{
    const auto corner = [](QSizeF canvas) {
        StepBuilder made(canvas, {0, 0}, 0s);
        made.setCapturing(true, 0s);
        made.handle({.kind = Kind::leftMouseDown, .point = {9000, 9000}});
        return made.steps().constFirst().point;
    };
    EXPECT_EQ(corner({0, 0}), QPointF(1280, 800));
    EXPECT_EQ(corner({0, 900}), QPointF(0, 900));
}

TEST_F(StepBuilderFixture, NothingIsRecordedUnlessCapturing)
{
    StepBuilder idle({1280, 800}, start, now);
    idle.handle({.kind = Kind::leftMouseDown, .point = {5, 5}, .time = now});
    idle.handle({.kind = Kind::keyDown, .text = "a", .time = now});
    idle.tick(now + 10s);
    EXPECT_TRUE(idle.finish(now + 10s).isEmpty());

    builder.setCapturing(false, now);
    click({900, 500});
    EXPECT_TRUE(steps().isEmpty());
}

TEST_F(StepBuilderFixture, SwitchingToAnotherApplicationIsAStep)
{
    now += 1.5s;
    switchTo("Notes");
    ASSERT_EQ(kinds(), Kinds({StepKind::switchApp}));
    EXPECT_EQ(steps()[0].text, "Notes");
    EXPECT_FALSE(steps()[0].centerWindow);
    EXPECT_EQ(steps()[0].recordedOffset, 1.5s);
}

TEST_F(StepBuilderFixture, TheSameApplicationAgainOrOursOrOneWithoutANameIsNone)
{
    switchTo("Notes");
    switchTo("Notes");
    builder.activate({.name = "Velvane", .ours = true}, now);
    switchTo("");
    switchTo("Notes");
    EXPECT_EQ(steps().size(), 1);
    switchTo("Mail");
    switchTo("Notes");
    EXPECT_EQ(steps().size(), 3);
}

TEST_F(StepBuilderFixture, ASwitchBeforeTheCaptureIsRememberedAndNotRecorded)
{
    StepBuilder early({1280, 800}, start, now);
    early.activate({.name = "Notes"}, now);
    early.setCapturing(true, now);
    early.activate({.name = "Notes"}, now);
    EXPECT_TRUE(early.steps().isEmpty());
    early.activate({.name = "Mail"}, now);
    EXPECT_EQ(early.steps().size(), 1);
}

} // namespace velvane
