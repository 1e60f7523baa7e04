#include "timeline/Timeline.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step recorded(std::optional<Seconds> offset, Seconds length)
{
    return {.kind = StepKind::wait, .pauseAfter = length, .recordedOffset = offset};
}

Timeline timelineOf(const QList<Step> &steps)
{
    return Timeline({.steps = steps, .startPoint = {}, .canvasSize = {1280, 800}});
}

} // namespace

TEST(VideoTime, IsAbsentWithoutSegments)
{
    EXPECT_FALSE(timelineOf({}).videoTime(0s, 10s));
}

TEST(VideoTime, IsAbsentForStepsThatWereNotRecorded)
{
    const Timeline timeline = timelineOf({recorded({}, 1s), recorded(4s, 1s)});
    EXPECT_FALSE(timeline.videoTime(0.5s, 10s));
    EXPECT_TRUE(timeline.videoTime(1.5s, 10s));
}

TEST(VideoTime, StretchesTheMovieBetweenTwoRecordedMoments)
{
    const Timeline timeline = timelineOf({recorded(2s, 1s), recorded(6s, 4s)});
    EXPECT_EQ(timeline.videoTime(0s, 10s), 2s);
    EXPECT_EQ(timeline.videoTime(0.5s, 10s), 4s);
    EXPECT_EQ(timeline.videoTime(1s, 10s), 6s);
}

TEST(VideoTime, TheLastSegmentRunsToTheEndOfTheMovie)
{
    const Timeline timeline = timelineOf({recorded(6s, 2s)});
    EXPECT_EQ(timeline.videoTime(1s, 10s), 8s);
    EXPECT_EQ(timeline.videoTime(2s, 10s), 10s);
    EXPECT_EQ(timeline.videoTime(99s, 10s), 10s);
}

TEST(VideoTime, RunsToTheEndBeforeAStepThatWasNotRecorded)
{
    const Timeline timeline = timelineOf({recorded(4s, 1s), recorded({}, 1s)});
    EXPECT_EQ(timeline.videoTime(0.5s, 10s), 7s);
}

TEST(VideoTime, StandsStillWhereTheMovieEndedEarlier)
{
    const Timeline timeline = timelineOf({recorded(12s, 2s)});
    for (const Seconds at : {0s, 1s, 2s})
        EXPECT_EQ(timeline.videoTime(at, 10s), 12s);
}

TEST(VideoTime, NeverRunsBackwards)
{
    const Timeline timeline = timelineOf({recorded(5s, 1s), recorded(3s, 1s)});
    EXPECT_EQ(timeline.videoTime(0.9s, 10s), 5s);
}

} // namespace velvane
