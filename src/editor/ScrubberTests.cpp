#include "editor/Scrubber.h"
#include "support/Print.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace velvane {

namespace {

/// A move of 1.3 s, a section, a click of 0.35 s and a wait of 1 s.
class ScrubberTest : public testing::Test {
protected:
    ScrubberTest()
    {
        project.setSteps({{.point = {10, 20}},
                          {.kind = StepKind::section, .text = QStringLiteral("Part")},
                          {.kind = StepKind::click},
                          {.kind = StepKind::wait, .pauseAfter = 1.0s}});
    }

    void key(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&scrubber, &event);
    }

    Project project;
    Playback playback;
    PreviewTimeline timeline{project, playback};
    Scrubber scrubber{project, playback, timeline};
};

} // namespace

TEST_F(ScrubberTest, ThereIsATickWhereEachStepStartsAndATallOneAfterASection)
{
    const auto &ticks = scrubber.ticks();
    ASSERT_EQ(ticks.size(), 3);
    EXPECT_EQ(ticks[0].at, 0s);
    EXPECT_FALSE(ticks[0].startsSection);
    EXPECT_EQ(ticks[1].at, 1.3s);
    EXPECT_TRUE(ticks[1].startsSection);
    EXPECT_FALSE(ticks[2].startsSection);
}

TEST_F(ScrubberTest, TheCurrentStepsNumberAndSummaryFollowTheTime)
{
    EXPECT_EQ(scrubber.currentNumber(), "1");
    EXPECT_EQ(scrubber.currentSummary(), "Move to (10, 20)");
    playback.setTime(playback.total());
    EXPECT_EQ(scrubber.currentNumber(), "3");
    EXPECT_EQ(scrubber.currentSummary(), "Wait 1.0s");
}

TEST_F(ScrubberTest, AnEditOfTheCurrentStepShows)
{
    auto steps = project.steps();
    steps[0].point = {30, 40};
    project.setSteps(steps);
    EXPECT_EQ(scrubber.currentSummary(), "Move to (30, 40)");
}

TEST_F(ScrubberTest, WithoutStepsThereIsNothingToTell)
{
    project.setSteps({});
    EXPECT_EQ(scrubber.currentSummary(), "");
    EXPECT_TRUE(scrubber.ticks().isEmpty());
    scrubber.grab();
}

TEST_F(ScrubberTest, ArrowKeysGoOneFrame)
{
    project.setFps(50);
    key(Qt::Key_Right);
    EXPECT_EQ(playback.time(), 0.02s);
    key(Qt::Key_Left);
    EXPECT_EQ(playback.time(), 0s);
    key(Qt::Key_End);
    EXPECT_EQ(playback.time(), playback.total());
    key(Qt::Key_Home);
    EXPECT_EQ(playback.time(), 0s);
}

TEST_F(ScrubberTest, ItFollowsThePlayback)
{
    playback.setTime(1.5s);
    EXPECT_EQ(scrubber.time(), 1.5s);
    EXPECT_EQ(scrubber.total(), playback.total());
}

TEST_F(ScrubberTest, AScreenReaderIsToldTheCurrentStep)
{
    QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(&scrubber);
    EXPECT_EQ(slider->text(QAccessible::Description), "1 Move to (10, 20)");
    EXPECT_FALSE(slider->text(QAccessible::Name).isEmpty());
}

} // namespace velvane
