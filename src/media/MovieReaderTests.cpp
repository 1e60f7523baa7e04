#include "media/MovieReader.h"

#include "support/MovieMaker.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using NumberedMovie::numberIn;

class MovieReaderTest : public MovieTest {
protected:
    MovieReader &open(const QString &path)
    {
        opening = MovieReader::open(path);
        EXPECT_EQ(opening.error, "");
        return *opening.reader;
    }

    /// Our own movie of 100 pictures, 50 a second.
    MovieReader &openEven()
    {
        NumberedMovie::write(file("even.mp4"), 100, 50);
        return open(file("even.mp4"));
    }

    MovieOpening opening;
};

} // namespace

TEST_F(MovieReaderTest, ItKnowsDurationAndSize)
{
    const MovieReader &movie = openEven();
    EXPECT_NEAR(movie.duration().count(), 2, 0.011);
    EXPECT_EQ(movie.size(), QSize(64, 48));
}

TEST_F(MovieReaderTest, PlayingForwardsShowsEveryPictureInItsTime)
{
    MovieReader &movie = openEven();
    for (int i = 0; i < 100; ++i) {
        const auto picture = movie.picture(Seconds((i + 0.5) / 50));
        ASSERT_TRUE(picture) << i;
        EXPECT_EQ(numberIn(picture), i);
        EXPECT_DOUBLE_EQ(picture->time().count(), i / 50.0);
    }
}

TEST_F(MovieReaderTest, AnyMomentShowsAPictureWithinTheTolerance)
{
    MovieReader &movie = openEven();
    for (const double at : {1.9, 0.3, 1.0, 0.99, 0.05, 1.999, 0.0, 1.5}) {
        const int number = numberIn(movie.picture(Seconds(at)));
        EXPECT_NEAR(number / 50.0, at, 0.051) << at;
    }
}

TEST_F(MovieReaderTest, MomentsOutsideTheMovieAreItsEnds)
{
    MovieReader &movie = openEven();
    EXPECT_EQ(numberIn(movie.picture(Seconds(99))), 99);
    EXPECT_EQ(numberIn(movie.picture(Seconds(-3))), 0);
    EXPECT_EQ(numberIn(movie.picture(Seconds(std::nan("")))), 0);
}

TEST_F(MovieReaderTest, APictureStaysUntilTheNextOne)
{
    NumberedMovie::write(file("still.mp4"), {0, 0.2, 5, 5.01, 9});
    MovieReader &movie = open(file("still.mp4"));
    EXPECT_EQ(numberIn(movie.picture(Seconds(0.1))), 0);
    EXPECT_EQ(numberIn(movie.picture(Seconds(4.9))), 1);
    EXPECT_EQ(numberIn(movie.picture(Seconds(3))), 1);
    EXPECT_EQ(numberIn(movie.picture(Seconds(8.5))), 3);
    EXPECT_EQ(numberIn(movie.picture(Seconds(0.25))), 1);
    EXPECT_EQ(numberIn(movie.picture(Seconds(9))), 4);
}

TEST_F(MovieReaderTest, ACancelledRequestLosesNothing)
{
    MovieReader &movie = openEven();
    int checks = 0;
    EXPECT_FALSE(movie.picture(Seconds(1.9), [&] { return ++checks > 30; }));
    EXPECT_EQ(numberIn(movie.picture(Seconds(1.9))), 95);
    EXPECT_FALSE(movie.picture(Seconds(0.1), [] { return true; }));
    EXPECT_EQ(numberIn(movie.picture(Seconds(0.11))), 5);
}

TEST_F(MovieReaderTest, OpeningIsCancelledToo)
{
    NumberedMovie::write(file("even.mp4"), 10, 50);
    const MovieOpening cancelled = MovieReader::open(file("even.mp4"), [] { return true; });
    EXPECT_EQ(cancelled.reader, nullptr);
    EXPECT_NE(cancelled.error, "");
}

TEST_F(MovieReaderTest, PicturesOutliveTheirMovie)
{
    std::vector<MoviePicture> kept;
    {
        MovieReader &movie = openEven();
        for (int i = 0; i < 100; ++i)
            kept.push_back(movie.picture(Seconds((i + 0.5) / 50)).value());
        opening.reader.reset();
    }
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(numberIn(kept[size_t(i)].image()), i);
}

TEST_F(MovieReaderTest, OurOwnColoursComeBack)
{
    const QList<QRgb> colours{qRgb(255, 0, 0),     qRgb(0, 255, 0), qRgb(0, 0, 255),
                              qRgb(255, 255, 255), qRgb(0, 0, 0),   qRgb(40, 120, 200)};
    QImage image(96, 64, QImage::Format_RGB32);
    for (int i = 0; i < colours.size(); ++i)
        for (int y = 0; y < 64; ++y)
            std::fill_n(reinterpret_cast<QRgb *>(image.scanLine(y)) + i * 16, 16, colours[i]);
    H264MovieWriter writer(file("colours.mp4"), image.size(), 60, 1);
    writer.append({image, image.rect(), Seconds(0)});
    writer.finish();
    const QImage shown = open(file("colours.mp4")).picture(Seconds(0))->image();
    ASSERT_EQ(shown.size(), image.size());
    for (int i = 0; i < colours.size(); ++i) {
        const QRgb seen = shown.pixel(i * 16 + 8, 31);
        EXPECT_NEAR(qRed(seen), qRed(colours[i]), 4) << i;
        EXPECT_NEAR(qGreen(seen), qGreen(colours[i]), 4) << i;
        EXPECT_NEAR(qBlue(seen), qBlue(colours[i]), 4) << i;
        EXPECT_EQ(qAlpha(seen), 255);
    }
}

TEST_F(MovieReaderTest, TheLastColumnAndRowOfAnOddSizeAreThere)
{
    NumberedMovie::write(file("odd.mp4"), 3, 50, {71, 51});
    const QImage shown = open(file("odd.mp4")).picture(Seconds(0.025))->image();
    ASSERT_EQ(shown.size(), QSize(72, 52));
    for (const int y : {0, 51}) {
        EXPECT_NEAR(qGreen(shown.pixel(0, y)), NumberedMovie::greyOf(0), 3);
        EXPECT_NEAR(qGreen(shown.pixel(71, y)), NumberedMovie::greyOf(1), 3);
    }
}

} // namespace velvane
