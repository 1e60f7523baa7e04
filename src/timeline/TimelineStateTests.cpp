#include "base/KeyCode.h"
#include "support/Print.h"
#include "timeline/Timeline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velvane {

namespace {

Timeline timelineOf(const QList<Step> &steps, QPointF start = {})
{
    return Timeline({.steps = steps, .startPoint = start, .canvasSize = {1280, 800}});
}

// One segment of one second.
Timeline lasting(StepKind kind, const QString &text = {})
{
    const bool acts = hasDuration(kind);
    return timelineOf({Step{.kind = kind,
                            .point = {100, 200},
                            .text = text,
                            .duration = 1s,
                            .pauseAfter = acts ? 0s : 1s}});
}

std::optional<QString> typedAt(const QString &text, Seconds at)
{
    return lasting(StepKind::type, text).state(at).caption;
}

} // namespace

TEST(TimelineState, BetweenPointsFartherApartThanAnyNumberTheCursorIsSomewhere)
{
    const double far = std::numeric_limits<double>::max();
    const Timeline timeline({.steps = {Step{.point = {far, -far}, .duration = 1s}},
                             .startPoint = {-far, far},
                             .canvasSize = {1280, 800}});
    for (const Seconds at : {0s, 0.25s, 0.5s, 0.75s, 1s}) {
        const QPointF cursor = timeline.state(at).cursor;
        EXPECT_TRUE(std::isfinite(cursor.x()) && std::isfinite(cursor.y())) << at.count();
    }
    EXPECT_EQ(timeline.state(0.5s).cursor, QPointF(0, 0));
    EXPECT_EQ(timeline.state(1s).cursor.x(), far);
}

TEST(TimelineState, AnEmptyDemoRestsAtItsStart)
{
    const FrameState state = timelineOf({}, {3, 4}).state(5s);
    EXPECT_EQ(
        state,
        (FrameState{.cursor = {3, 4}, .ripple = {}, .press = 0, .held = false, .caption = {}}));
}

TEST(TimelineState, AMoveGlidesWithEase)
{
    const Timeline timeline = lasting(StepKind::move);
    EXPECT_EQ(timeline.state(0s).cursor, QPointF(0, 0));
    EXPECT_EQ(timeline.state(0.25s).cursor, QPointF(6.25, 12.5));
    EXPECT_EQ(timeline.state(0.5s).cursor, QPointF(50, 100));
    EXPECT_EQ(timeline.state(1s).cursor, QPointF(100, 200));
}

TEST(TimelineState, AMoveRestsAtItsTargetDuringItsPause)
{
    const Timeline timeline = timelineOf(
        {Step{.kind = StepKind::move, .point = {10, 0}, .duration = 1s, .pauseAfter = 1s}});
    EXPECT_EQ(timeline.state(1.0s).cursor, QPointF(10, 0));
    EXPECT_EQ(timeline.state(1.7s).cursor, QPointF(10, 0));
}

TEST(TimelineState, TimesOutsideTheDemoShowItsEnds)
{
    const Timeline timeline = lasting(StepKind::move);
    EXPECT_EQ(timeline.state(-3s), timeline.state(0s));
    EXPECT_EQ(timeline.state(99s), timeline.state(1s));
    EXPECT_EQ(timeline.state(Seconds(std::numeric_limits<double>::infinity())), timeline.state(1s));
}

TEST(TimelineState, AClickInTheMiddleOfItsSegmentIsFullyDown)
{
    for (const StepKind kind : {StepKind::click, StepKind::rightClick}) {
        const FrameState state = lasting(kind).state(0.5s);
        EXPECT_EQ(state.ripple, 0.5);
        EXPECT_DOUBLE_EQ(state.press, 1);
        EXPECT_FALSE(state.held);
    }
}

TEST(TimelineState, AHoldIsDownAfterAQuarter)
{
    const Timeline timeline = lasting(StepKind::hold);
    EXPECT_DOUBLE_EQ(timeline.state(0.125s).press, 0.5);
    EXPECT_DOUBLE_EQ(timeline.state(0.25s).press, 1);
    EXPECT_DOUBLE_EQ(timeline.state(0.9s).press, 1);
    EXPECT_TRUE(timeline.state(0s).held);
}

TEST(TimelineState, AReleaseLetsGoWithinAQuarter)
{
    const Timeline timeline = lasting(StepKind::release);
    EXPECT_NEAR(timeline.state(0.24s).press, 0.04, 1e-12);
    EXPECT_FALSE(timeline.state(0.24s).held);
    EXPECT_NEAR(timeline.state(0.2s).press, 0.2, 1e-12);
    EXPECT_TRUE(timeline.state(0.2s).held);
    EXPECT_EQ(timeline.state(0.5s).press, 0);
}

TEST(TimelineState, StepsAfterAHoldShowTheButtonDown)
{
    const Timeline timeline =
        timelineOf({Step{.kind = StepKind::hold, .pauseAfter = 1s},
                    Step{.kind = StepKind::move, .point = {9, 9}, .duration = 1s},
                    Step{.kind = StepKind::click, .pauseAfter = 1s}});
    EXPECT_EQ(timeline.state(1.5s).press, 1);
    EXPECT_TRUE(timeline.state(1.5s).held);
    const FrameState click = timeline.state(2.3s);
    EXPECT_EQ(click.press, 0) << "a click shows its own press";
    EXPECT_TRUE(click.held);
}

TEST(TimelineState, TypingShowsTheRoundedShareOfTheText)
{
    EXPECT_EQ(typedAt("Hello", 0.5s), "Hel");
    EXPECT_EQ(typedAt("Hello", 1s), "Hello");
    EXPECT_FALSE(typedAt("Hello", 0s));
    EXPECT_FALSE(typedAt("", 1s));
}

TEST(TimelineState, TypingNeverCutsACharacter)
{
    EXPECT_EQ(typedAt(QString::fromUtf8("한👨‍👩‍👧‍👦e\u0301🇩🇪"), 0.5s),
              QString::fromUtf8("한👨‍👩‍👧‍👦"));
}

TEST(TimelineState, TypedTextStaysDuringThePause)
{
    const Timeline timeline =
        timelineOf({Step{.kind = StepKind::type, .text = "ab", .duration = 1s, .pauseAfter = 2s}});
    EXPECT_EQ(timeline.state(2.5s).caption, "ab");
}

TEST(TimelineState, AShortcutShowsItsKeysThroughout)
{
    const Timeline timeline = timelineOf({Step{.kind = StepKind::shortcut,
                                               .text = "s",
                                               .pauseAfter = 1s,
                                               .modifiers = Modifier::command}});
    EXPECT_EQ(timeline.state(0s).caption, QString::fromUtf8("⌘s"));
    EXPECT_EQ(timeline.state(1s).caption, QString::fromUtf8("⌘s"));
    EXPECT_FALSE(lasting(StepKind::shortcut).state(0.5s).caption);
}

TEST(TimelineState, SwitchingShowsTheApplication)
{
    EXPECT_EQ(lasting(StepKind::switchApp, "Mail").state(0.5s).caption,
              QString::fromUtf8("→ Mail"));
    EXPECT_EQ(lasting(StepKind::switchApp).state(0.5s).caption, QString::fromUtf8("→ app"));
}

TEST(TimelineState, AWaitShowsOnlyTheCursor)
{
    const FrameState state = lasting(StepKind::wait).state(0.5s);
    EXPECT_FALSE(state.ripple || state.caption || state.held);
    EXPECT_EQ(state.press, 0);
}

TEST(TimelineState, AtABoundaryTheLaterSegmentIsShown)
{
    const Timeline timeline =
        timelineOf({Step{.kind = StepKind::switchApp, .text = "A", .pauseAfter = 1s},
                    Step{.kind = StepKind::switchApp, .text = "B", .pauseAfter = 1s}});
    EXPECT_EQ(timeline.state(1s).caption, QString::fromUtf8("→ B"));
    EXPECT_EQ(timeline.state(2s).caption, QString::fromUtf8("→ B"));
}

} // namespace velvane
