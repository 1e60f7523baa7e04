#include "editor/PreviewTimeline.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step moveTo(QPointF point, Seconds duration)
{
    Step step;
    step.point = point;
    step.duration = duration;
    step.pauseAfter = 0s;
    return step;
}

} // namespace

TEST(PreviewTimeline, ThePlaybacksTotalIsThatOfTheDemoAsItStands)
{
    Project project;
    project.setSteps({moveTo({0, 0}, 2s)});
    Playback playback;
    const PreviewTimeline preview(project, playback);
    EXPECT_EQ(playback.total(), 2s);
    project.setSteps(project.steps() + QList{moveTo({100, 0}, 3s)});
    EXPECT_EQ(playback.total(), 5s);
}

TEST(PreviewTimeline, TheStateIsThatOfThePlaybacksTime)
{
    Project project;
    project.setSteps({moveTo({740, 400}, 2s)});
    Playback playback;
    const PreviewTimeline preview(project, playback);
    EXPECT_EQ(preview.state().cursor, QPointF(640, 400));
    playback.setTime(1s);
    EXPECT_EQ(preview.state().cursor, QPointF(690, 400));
    project.setStartPoint({540, 400});
    EXPECT_EQ(preview.state().cursor, QPointF(640, 400));
}

TEST(PreviewTimeline, AnEditIsAnnouncedOnce)
{
    Project project;
    Playback playback;
    const PreviewTimeline preview(project, playback);
    int changes = 0;
    QObject::connect(&preview, &PreviewTimeline::timelineChanged, [&] { ++changes; });
    project.setSteps({moveTo({1, 2}, 2s)});
    project.setSelection(project.steps()[0].id);
    EXPECT_EQ(changes, 1);
}

} // namespace velvane
