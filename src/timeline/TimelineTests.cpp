#include "timeline/Timeline.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step stepOf(StepKind kind, Seconds duration, Seconds pauseAfter, QPointF point = {})
{
    return {.kind = kind, .point = point, .duration = duration, .pauseAfter = pauseAfter};
}

Timeline timelineOf(const QList<Step> &steps, QPointF start = {})
{
    return Timeline({.steps = steps, .startPoint = start, .canvasSize = {1280, 800}});
}

} // namespace

TEST(Timeline, WithoutPlayableStepsIsEmpty)
{
    EXPECT_EQ(timelineOf({}).total(), 0s);
    const Timeline sections = timelineOf({stepOf(StepKind::section, 1s, 3s)});
    EXPECT_TRUE(sections.steps().isEmpty());
    EXPECT_EQ(sections.total(), 0s);
}

TEST(Timeline, AMoveWithoutAnyTimeStillLastsAMoment)
{
    const Timeline timeline = timelineOf({stepOf(StepKind::move, 0s, 0s)});
    EXPECT_EQ(timeline.steps()[0].actionDuration, 0.0001s);
    EXPECT_EQ(timeline.steps()[0].end, 0.0001s);
}

TEST(Timeline, ANegativePauseAddsNothing)
{
    const Timeline timeline = timelineOf({stepOf(StepKind::click, 5s, -1s)});
    EXPECT_EQ(timeline.steps()[0].actionDuration, 0s);
    EXPECT_EQ(timeline.total(), 0.0001s);
}

TEST(Timeline, LengthsBeyondAnyNumberEndAtTheLargest)
{
    const QList<Step> steps{stepOf(StepKind::move, 1e308s, 1e308s),
                            stepOf(StepKind::wait, 0s, 1e308s), stepOf(StepKind::click, 0s, 1s)};
    const Timeline timeline = timelineOf(steps);
    EXPECT_EQ(timeline.total(), Seconds::max());
    EXPECT_EQ(timeline.steps()[2].start, Seconds::max());
    EXPECT_EQ(Timeline::total(steps), Seconds::max());
    const FrameState last = timeline.state(Seconds::max());
    EXPECT_EQ(last.ripple, 1.0) << "a click without any time of its own is over";
}

TEST(Timeline, TheTotalOfStepsIsThatOfTheirTimeline)
{
    QList<Step> steps;
    for (int i = 0; i < 100; ++i)
        steps << stepOf(allStepKinds[i % allStepKinds.size()], Seconds(0.1 * i),
                        Seconds(0.7 - 0.01 * i));
    EXPECT_EQ(Timeline::total(steps), timelineOf(steps).total());
    EXPECT_EQ(Timeline::total({}), 0s);
}

TEST(Timeline, OnlyMoveAndTypeSpendTheirDuration)
{
    const Timeline timeline =
        timelineOf({stepOf(StepKind::move, 1s, 0.5s), stepOf(StepKind::type, 2s, 0.25s),
                    stepOf(StepKind::wait, 9s, 4s)});
    EXPECT_EQ(timeline.steps()[0].end, 1.5s);
    EXPECT_EQ(timeline.steps()[1].end, 3.75s);
    EXPECT_EQ(timeline.steps()[2].end, 7.75s);
    EXPECT_EQ(timeline.steps()[2].actionDuration, 0s);
}

TEST(Timeline, TheButtonIsHeldFromAfterAHoldToARelease)
{
    const Timeline timeline =
        timelineOf({stepOf(StepKind::hold, 1s, 0s), stepOf(StepKind::move, 1s, 0s),
                    stepOf(StepKind::move, 1s, 0s), stepOf(StepKind::release, 1s, 0s),
                    stepOf(StepKind::move, 1s, 0s)});
    QList<bool> held;
    for (const ResolvedStep &segment : timeline.steps())
        held << segment.heldEntering;
    EXPECT_EQ(held, QList<bool>({false, true, true, true, false}));
}

TEST(Timeline, OnlyMovesChangeThePosition)
{
    const Timeline timeline = timelineOf(
        {stepOf(StepKind::move, 1s, 0s, {100, 50}), stepOf(StepKind::click, 1s, 1s, {7, 7})});
    EXPECT_EQ(timeline.steps()[0].startPos, QPointF(0, 0));
    EXPECT_EQ(timeline.steps()[0].endPos, QPointF(100, 50));
    EXPECT_EQ(timeline.steps()[1].startPos, QPointF(100, 50));
    EXPECT_EQ(timeline.steps()[1].endPos, QPointF(100, 50));
}

TEST(Timeline, SegmentsAreContiguousAndAscend)
{
    QList<Step> steps;
    for (int i = 0; i < 1000; ++i)
        steps << stepOf(allStepKinds.at(i % allStepKinds.size()), Seconds(i % 3 * 0.1),
                        Seconds(i % 7 * 0.1 - 0.1));
    const Timeline timeline = timelineOf(steps);
    Seconds last = 0s;
    for (const ResolvedStep &segment : timeline.steps()) {
        EXPECT_EQ(segment.start, last);
        EXPECT_GT(segment.end, segment.start);
        last = segment.end;
    }
    EXPECT_EQ(timeline.total(), last);
    EXPECT_EQ(timeline.steps().size(), 900);
}

TEST(Timeline, FindsTheSegmentOfEveryMomentAsAWalkWould)
{
    QList<Step> steps;
    for (int i = 0; i < 60; ++i)
        steps << stepOf(i % 4 ? StepKind::wait : StepKind::click, 1s, Seconds(i % 5 * 0.25));
    const Timeline timeline = timelineOf(steps);
    const auto walked = [&](Seconds at) {
        for (qsizetype i = 0; i < timeline.steps().size(); ++i) {
            if (timeline.steps()[i].start <= at && at < timeline.steps()[i].end)
                return i;
        }
        return timeline.steps().size() - 1;
    };
    for (const ResolvedStep &segment : timeline.steps()) {
        for (const Seconds at : {segment.start, (segment.start + segment.end) / 2, segment.end})
            EXPECT_EQ(timeline.segmentIndex(at), walked(at)) << at.count();
    }
    EXPECT_EQ(timeline.segmentIndex(-1s), 0);
    EXPECT_EQ(timeline.segmentIndex(1000s), 59);
}

} // namespace velvane
