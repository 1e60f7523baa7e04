#include "timeline/Playback.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

TEST(Playback, WithNothingToPlayItDoesNotStart)
{
    Playback playback;
    playback.play(60);
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_EQ(playback.time(), 0s);
}

TEST(Playback, AtTheEndItStartsOver)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.setTime(5.0s);
    playback.play(60);
    EXPECT_EQ(playback.time(), 0s);
    EXPECT_TRUE(playback.isPlaying());
}

TEST(Playback, InTheMiddleItGoesOn)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.setTime(2.0s);
    playback.play(60);
    EXPECT_EQ(playback.time(), 2.0s);
    playback.tick();
    EXPECT_EQ(playback.time(), 2.0s + Seconds(1.0 / 60));
}

TEST(Playback, RatesBelowOneTickOnceASecond)
{
    for (const int fps : {0, -5, 1}) {
        Playback playback;
        playback.setTotal(5.0s);
        playback.play(fps);
        playback.tick();
        EXPECT_EQ(playback.time(), 1.0s);
    }
}

TEST(Playback, AtSixtyAShortDemoStopsAfterThreeTicksExactlyAtItsEnd)
{
    Playback playback;
    playback.setTotal(0.05s);
    playback.play(60);
    playback.tick();
    playback.tick();
    EXPECT_TRUE(playback.isPlaying());
    EXPECT_LT(playback.time(), 0.05s);
    playback.tick();
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_EQ(playback.time(), 0.05s);
}

TEST(Playback, PausingKeepsTheTime)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.play(60);
    playback.tick();
    const Seconds time = playback.time();
    playback.pause();
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_EQ(playback.time(), time);
}

TEST(Playback, PausingWhenNotPlayingIsHarmless)
{
    Playback playback;
    int signalled = 0;
    QObject::connect(&playback, &Playback::isPlayingChanged, [&] { ++signalled; });
    playback.pause();
    EXPECT_FALSE(playback.isPlaying());
    EXPECT_EQ(signalled, 0);
}

TEST(Playback, TheLastTickShowsTheEndBeforeItStops)
{
    Playback playback;
    playback.setTotal(1.0s);
    QStringList heard;
    QObject::connect(&playback, &Playback::timeChanged,
                     [&] { heard << QString::number(playback.time().count()); });
    QObject::connect(&playback, &Playback::isPlayingChanged,
                     [&] { heard << (playback.isPlaying() ? "plays" : "stops"); });
    playback.play(1);
    playback.tick();
    EXPECT_EQ(heard, QStringList({"plays", "1", "stops"}));
}

TEST(Playback, ADemoThatGetsShorterStopsAtItsNewEnd)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.setTime(4.0s);
    playback.play(60);
    playback.setTotal(3.0s);
    playback.tick();
    EXPECT_EQ(playback.time(), 3.0s);
    EXPECT_FALSE(playback.isPlaying());
}

TEST(Playback, PlayingAlreadyItTakesTheNewRate)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.play(60);
    playback.play(2);
    playback.tick();
    EXPECT_EQ(playback.time(), 0.5s);
    playback.pause();
    EXPECT_FALSE(playback.isPlaying());
}

TEST(Playback, GoingToTheStartGoesOnPlaying)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.setTime(3.0s);
    playback.play(60);
    playback.goToStart();
    EXPECT_EQ(playback.time(), 0s);
    EXPECT_TRUE(playback.isPlaying());
}

TEST(Playback, ToggledItPlaysAndPauses)
{
    Playback playback;
    playback.setTotal(5.0s);
    playback.toggle(60);
    EXPECT_TRUE(playback.isPlaying());
    playback.toggle(60);
    EXPECT_FALSE(playback.isPlaying());
}

TEST(Playback, TimesThatAreNotFiniteAreIgnored)
{
    Playback playback;
    playback.setTotal(Seconds(std::numeric_limits<double>::infinity()));
    playback.setTime(Seconds(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(playback.total(), 0s);
    EXPECT_EQ(playback.time(), 0s);
}

} // namespace velvane
