#include "media/MovieReader.h"

#include "support/MovieMaker.h"
#include "support/Print.h"

#include <QFile>

#include <gtest/gtest.h>

namespace velvane {

namespace {

using NumberedMovie::numberIn;

/// A container and what ffmpeg writes into it.
struct Format {
    const char *name;
    QStringList options;
};

class MovieFormatTest : public MovieTest, public testing::WithParamInterface<Format> {};

QStringList words(const char *options)
{
    return QString::fromLatin1(options).split(' ');
}

const Format formats[]{
    {"b-pictures.mp4", words("-c:v libx264 -bf 3 -g 30 -pix_fmt yuv420p")},
    {"one-key.mov", words("-c:v libx264 -g 1000 -pix_fmt yuv420p")},
    {"full-range.mp4", words("-c:v libx264 -pix_fmt yuvj420p -color_range pc")},
    {"chroma444.mkv", words("-c:v libx264 -pix_fmt yuv444p")},
    {"ten-bit.mkv", words("-c:v libx264 -pix_fmt yuv420p10le")},
    {"rgb.mkv", words("-c:v ffv1 -pix_fmt bgr0")},
    {"mpeg4.mp4", words("-c:v mpeg4 -q:v 2 -pix_fmt yuv420p")},
    {"hevc.mp4", words("-c:v libx265 -x265-params log-level=none -pix_fmt yuv420p")},
    {"prores.mov", words("-c:v prores_ks -pix_fmt yuv422p10le")},
    {"vp8.webm", words("-c:v libvpx -b:v 1M -g 30 -deadline realtime -pix_fmt yuv420p")},
    {"vp9.webm", words("-c:v libvpx-vp9 -crf 20 -b:v 0 -g 30 -deadline realtime -pix_fmt yuv420p")},
    {"no-table.mkv", words("-c:v libx264 -g 10 -pix_fmt yuv420p -live 1")},
    {"fragments.mp4",
     words("-c:v libx264 -g 10 -bf 0 -pix_fmt yuv420p -movflags empty_moov+frag_keyframe")},
    {"cut-off.mp4", words("-c:v libx264 -g 10 -bf 0 -pix_fmt yuv420p "
                          "-movflags empty_moov+frag_keyframe+skip_trailer")},
};

void PrintTo(const Format &format, std::ostream *out)
{
    *out << format.name;
}

} // namespace

TEST_P(MovieFormatTest, ItsPicturesAreFoundForwardsAndAnywhere)
{
    runFfmpeg(NumberedMovie::source(4) + GetParam().options, file(GetParam().name));
    const MovieOpening opening = MovieReader::open(file(GetParam().name));
    ASSERT_TRUE(opening.reader) << opening.error.toStdString();
    MovieReader &movie = *opening.reader;
    EXPECT_NEAR(movie.duration().count(), 4, 0.05);
    EXPECT_EQ(movie.size(), QSize(64, 48));
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(numberIn(movie.picture(Seconds((i + 0.5) / 25))), i);
    for (const double at : {3.5, 0.5, 2.0, 1.22, 3.98, 0.0})
        EXPECT_NEAR(numberIn(movie.picture(Seconds(at))), at * 25, 1.3) << at;
}

INSTANTIATE_TEST_SUITE_P(Movies, MovieFormatTest, testing::ValuesIn(formats));

namespace {

class MovieShapeTest : public MovieTest {
protected:
    /// A movie of one black and one white half, left and right, and these options.
    QImage firstPicture(const char *name, const QStringList &options)
    {
        runFfmpeg({"-f", "lavfi", "-i",
                   "color=black:s=64x48:r=25:d=0.2,drawbox=x=32:w=32:h=48:"
                   "t=fill:color=white"},
                  file("plain.mp4"));
        runFfmpeg(QStringList{"-i", file("plain.mp4")} + options, file(name));
        const MovieOpening opening = MovieReader::open(file(name));
        EXPECT_EQ(opening.error, "");
        if (!opening.reader)
            return {};
        const QImage image = opening.reader->picture(Seconds(0))->image();
        EXPECT_EQ(image.size(), opening.reader->size());
        return image;
    }
};

} // namespace

TEST_F(MovieShapeTest, ATurnedMovieIsSeenUpright)
{
    // By a quarter counterclockwise, as ffmpeg's own tool turns it.
    const QImage image = firstPicture("turned.mp4", words("-c copy -metadata:s:v rotate=90"));
    ASSERT_EQ(image.size(), QSize(48, 64));
    EXPECT_GT(qGray(image.pixel(24, 8)), 215);
    EXPECT_LT(qGray(image.pixel(24, 56)), 40);
}

TEST_F(MovieShapeTest, AMovieUpsideDownIsTurned)
{
    const QImage image = firstPicture("down.mp4", words("-c copy -metadata:s:v rotate=180"));
    ASSERT_EQ(image.size(), QSize(64, 48));
    EXPECT_GT(qGray(image.pixel(8, 24)), 215);
    EXPECT_LT(qGray(image.pixel(56, 24)), 40);
}

TEST_F(MovieShapeTest, PixelsThatAreNotSquareAreStretched)
{
    const QImage image = firstPicture("wide.mp4", words("-vf setsar=3/2"));
    ASSERT_EQ(image.size(), QSize(96, 48));
    EXPECT_LT(qGray(image.pixel(8, 24)), 40);
    EXPECT_GT(qGray(image.pixel(88, 24)), 215);
}

TEST_F(MovieShapeTest, TheMatrixThatTheMovieNamesIsUsed)
{
    for (const char *matrix : {"bt709", "smpte170m", "bt2020nc"}) {
        runFfmpeg({"-f", "lavfi", "-i", "color=0x2060C0:s=64x48:r=25:d=0.2,format=gbrp", "-vf",
                   QStringLiteral("scale=out_color_matrix=%1:out_range=tv,format=yuv420p")
                       .arg(QString::fromLatin1(matrix).remove("nc").replace("smpte170m", "bt601")),
                   "-colorspace", matrix, "-color_range", "tv", "-c:v", "libx264", "-qp", "1"},
                  file("matrix.mp4"));
        const MovieOpening opening = MovieReader::open(file("matrix.mp4"));
        ASSERT_TRUE(opening.reader) << opening.error.toStdString();
        const QRgb seen = opening.reader->picture(Seconds(0))->image().pixel(30, 20);
        EXPECT_NEAR(qRed(seen), 0x20, 4) << matrix;
        EXPECT_NEAR(qGreen(seen), 0x60, 4) << matrix;
        EXPECT_NEAR(qBlue(seen), 0xC0, 4) << matrix;
    }
}

} // namespace velvane
