#include "capture/VideoBackdrop.h"

#include "support/MovieMaker.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/Until.h"

#include <QFile>

#include <gtest/gtest.h>

namespace velvane {

namespace {

using NumberedMovie::numberIn;

class VideoBackdropTest : public MovieTest {
protected:
    VideoBackdropTest()
    {
        QObject::connect(&video, &VideoBackdrop::frameChanged,
                         [this] { shown << numberIn(video.frame()); });
    }

    QString movie(int pictures = 100)
    {
        const QString path = file(QStringLiteral("movie%1.mp4").arg(pictures));
        NumberedMovie::write(path, pictures, 50);
        return path;
    }

    /// Loads it and waits for its first picture.
    void load(const QString &path)
    {
        runToEnd(video.load(path));
        until([this] { return !video.frame().isNull(); });
        shown.clear();
    }

    /// Asks for a picture and waits for it.
    void show(Seconds time, int number)
    {
        video.requestFrame(time);
        until([&] { return numberIn(video.frame()) == number; });
    }

    QList<int> shown; ///< the numbers of the pictures shown; -1 for none
    VideoBackdrop video;
};

} // namespace

TEST_F(VideoBackdropTest, AtFirstItIsEmptyAndRequestsDoNothing)
{
    video.requestFrame(3s);
    EXPECT_TRUE(video.frame().isNull());
    EXPECT_TRUE(video.size().isEmpty());
    EXPECT_EQ(video.currentTime(), 0s);
    EXPECT_EQ(video.duration(), 0s);
    EXPECT_TRUE(video.url().isEmpty());
}

TEST_F(VideoBackdropTest, LoadingShowsTheFirstPicture)
{
    const QString path = movie();
    runToEnd(video.load(path));
    EXPECT_NEAR(video.duration().count(), 2, 0.011);
    EXPECT_EQ(video.size(), QSizeF(64, 48));
    EXPECT_EQ(video.url(), path);
    until([this] { return !video.frame().isNull(); });
    EXPECT_EQ(numberIn(video.frame()), 0);
    EXPECT_EQ(video.frame().size(), QSize(64, 48));
}

TEST_F(VideoBackdropTest, ARequestedPictureIsShown)
{
    load(movie());
    show(Seconds(1.21), 60);
    EXPECT_EQ(video.currentTime(), Seconds(1.21));
    EXPECT_EQ(shown, QList<int>({60}));
}

TEST_F(VideoBackdropTest, TimesOutsideTheMovieAreItsEnds)
{
    load(movie());
    show(99s, 99);
    EXPECT_EQ(video.currentTime(), video.duration());
    show(-3s, 0);
    EXPECT_EQ(video.currentTime(), 0s);
}

TEST_F(VideoBackdropTest, OfTwoQuickRequestsOnlyTheSecondIsShownAndKept)
{
    load(movie());
    video.requestFrame(Seconds(0.41));
    video.requestFrame(Seconds(1.21));
    until([this] { return !shown.isEmpty(); });
    EXPECT_EQ(shown, QList<int>({60}));
    // Had the first been kept it would come at once.
    video.requestFrame(Seconds(0.41));
    EXPECT_EQ(numberIn(video.frame()), 60);
    until([this] { return shown.size() == 2; });
    EXPECT_EQ(numberIn(video.frame()), 20);
}

TEST_F(VideoBackdropTest, AHandThatMovesOnAndOnSeesPictures)
{
    load(movie());
    // Faster than any picture can be decoded, without a rest.
    const auto patience = std::chrono::steady_clock::now() + 60s;
    int requests = 0;
    while (shown.isEmpty()) {
        ASSERT_LT(std::chrono::steady_clock::now(), patience) << "waited 60 s for a picture";
        video.requestFrame(Seconds(0.05 + 0.02 * (requests++ % 90)));
        if (requests % 10 == 0)
            QCoreApplication::processEvents();
    }
    EXPECT_GT(requests, 5);
    // What was shown meanwhile was not kept; the last one asked for comes in its turn.
    video.requestFrame(Seconds(1.99));
    until([this] { return numberIn(video.frame()) == 99; });
    QCoreApplication::processEvents();
    EXPECT_EQ(numberIn(video.frame()), 99);
}

TEST_F(VideoBackdropTest, WhatWasShownMeanwhileEndsWithTheMovie)
{
    load(movie());
    for (int i = 0; i < 20; ++i)
        video.requestFrame(Seconds(0.05 + 0.02 * i));
    video.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(video.frame().isNull());
    runToEnd(video.load(movie(10)));
    shown.clear();
    until([this] { return !video.frame().isNull(); });
    EXPECT_EQ(shown, QList<int>({0}));
}

TEST_F(VideoBackdropTest, AKeptPictureIsShownAtOnce)
{
    load(movie());
    show(Seconds(1.21), 60);
    video.requestFrame(0s);
    EXPECT_EQ(numberIn(video.frame()), 0);
    video.requestFrame(Seconds(1.212));
    EXPECT_EQ(numberIn(video.frame()), 60);
}

TEST_F(VideoBackdropTest, APictureThatComesAfterAKeptOneIsNotShown)
{
    load(movie());
    show(Seconds(1.21), 60);
    video.requestFrame(Seconds(0.41));
    video.requestFrame(0s);
    shown.clear();
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); // it arrives
    EXPECT_TRUE(shown.isEmpty());
    show(Seconds(0.41), 20);
}

TEST_F(VideoBackdropTest, APictureUnderWayDoesNotSurviveAReset)
{
    const QString path = movie();
    load(path);
    video.requestFrame(Seconds(1.21));
    video.reset();
    EXPECT_TRUE(video.frame().isNull());
    EXPECT_EQ(video.duration(), 0s);
    EXPECT_TRUE(video.url().isEmpty());
    shown.clear();
    runToEnd(video.load(path));
    until([this] { return !shown.isEmpty(); });
    EXPECT_EQ(shown, QList<int>({0}));
}

TEST_F(VideoBackdropTest, AResetForgetsAllPictures)
{
    const QString path = movie();
    load(path);
    show(Seconds(1.21), 60);
    load(movie(50));
    video.requestFrame(Seconds(0.81));
    EXPECT_EQ(numberIn(video.frame()), 0);
    until([this] { return numberIn(video.frame()) == 40; });
}

TEST_F(VideoBackdropTest, OfTwoLoadsTheSecondCounts)
{
    const QString first = movie(100);
    const QString second = movie(50);
    const auto superseded = video.load(first);
    runToEnd(video.load(second));
    until([this] { return !video.frame().isNull(); });
    until([&] { return superseded.isReady(); });
    EXPECT_EQ(video.url(), second);
    EXPECT_NEAR(video.duration().count(), 1, 0.011);
}

TEST_F(VideoBackdropTest, AResetEndsALoadThatIsUnderWay)
{
    const auto loading = video.load(movie());
    video.reset();
    until([&] { return loading.isReady(); });
    EXPECT_EQ(video.duration(), 0s);
    EXPECT_TRUE(video.url().isEmpty());
}

TEST_F(VideoBackdropTest, ItMayGoAwayWhileItLoadsOrDecodes)
{
    const QString path = movie();
    auto gone = std::make_unique<VideoBackdrop>();
    const auto loading = gone->load(path);
    gone.reset();
    until([&] { return loading.isReady(); });

    gone = std::make_unique<VideoBackdrop>();
    runToEnd(gone->load(path));
    gone->requestFrame(1s);
    gone.reset();
    QCoreApplication::processEvents();
}

TEST_F(VideoBackdropTest, AFileThatIsNoMovieLeavesItEmpty)
{
    QFile text(file("text.mp4"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no movie");
    text.close();
    runToEnd(video.load(text.fileName()));
    EXPECT_EQ(video.duration(), 0s);
    EXPECT_EQ(video.url(), text.fileName());
    video.requestFrame(1s);
    EXPECT_EQ(video.currentTime(), 0s);
    EXPECT_TRUE(video.frame().isNull());
}

} // namespace velvane
