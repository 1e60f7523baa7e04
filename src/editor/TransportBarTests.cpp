#include "editor/Scrubber.h"
#include "editor/TimeLabel.h"
#include "editor/TransportBar.h"
#include "support/Print.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class TransportBarTest : public testing::Test {
protected:
    TransportBarTest() { project.setSteps({{.point = {10, 20}}}); }

    Project project;
    Playback playback;
    PreviewTimeline timeline{project, playback};
    TransportBar bar{project, playback, timeline};
};

} // namespace

TEST_F(TransportBarTest, PlayPlaysAndThenReadsPause)
{
    EXPECT_EQ(bar.playButton().accessibleName(), "Play");
    bar.playButton().click();
    EXPECT_TRUE(playback.isPlaying());
    EXPECT_EQ(bar.playButton().accessibleName(), "Pause");
    bar.playButton().click();
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_EQ(bar.playButton().accessibleName(), "Play");
}

TEST_F(TransportBarTest, RewindGoesToTheStart)
{
    playback.setTime(1s);
    bar.rewindButton().click();
    EXPECT_EQ(playback.time(), 0s);
}

TEST_F(TransportBarTest, AnEmptyDemoCannotBePlayed)
{
    EXPECT_TRUE(bar.playButton().isEnabled());
    project.setSteps({});
    EXPECT_FALSE(bar.playButton().isEnabled());
    EXPECT_EQ(bar.timeLabel().accessibleName(), "0.0 / 0.0s");
}

TEST_F(TransportBarTest, TheLabelShowsTimeOverTotal)
{
    playback.setTime(0.75s);
    EXPECT_EQ(bar.timeLabel().accessibleName(), "0.8 / 1.3s");
    project.setSteps({});
    EXPECT_EQ(bar.timeLabel().accessibleName(), "0.0 / 0.0s");
}

TEST_F(TransportBarTest, EveryControlIsNamedAndReachedFromLeftToRight)
{
    EXPECT_EQ(bar.height(), 56);
    EXPECT_EQ(bar.rewindButton().nextInFocusChain(), &bar.playButton());
    EXPECT_EQ(bar.playButton().nextInFocusChain(), &bar.scrubber());
    for (const QWidget *control : std::initializer_list<QWidget *>{
             &bar.rewindButton(), &bar.playButton(), &bar.scrubber()}) {
        EXPECT_FALSE(control->accessibleName().isEmpty());
        EXPECT_FALSE(control->toolTip().isEmpty());
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus);
    }
}

} // namespace velvane
