#include "media/H264MovieWriter.h"

#include "support/MovieRoundTrip.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class H264MovieWriterFormatTest : public MovieRoundTrip {};

} // namespace

TEST_F(H264MovieWriterFormatTest, KeyPictureComesEverySixHundredFrames)
{
    MovieScene scene({320, 200});
    const MovieResult result = roundTrip(scene, 60, 1801, atRandom);
    EXPECT_EQ(result.keys, (std::vector<int>{0, 600, 1200, 1800}));
    expectGood(result.quality);
}

TEST_F(H264MovieWriterFormatTest, MovieIsTaggedAsWhatItIs)
{
    MovieScene scene({64, 48});
    roundTrip(scene, 60, 3, nothing);
    const MovieProbe probe(path());
    const MovieProbe::Tags tags = probe.tags();
    EXPECT_EQ(probe.codec(), "h264");
    EXPECT_EQ(tags.primaries, 1);
    EXPECT_EQ(tags.transfer, 1);
    EXPECT_EQ(tags.matrix, 1);
    EXPECT_TRUE(tags.isLimitedRange);
    EXPECT_TRUE(tags.isChromaLeft);
}

TEST_F(H264MovieWriterFormatTest, IndexLiesBeforeThePictures)
{
    MovieScene scene({64, 48});
    roundTrip(scene, 60, 100, atRandom);
    const QList<QByteArray> boxes = movieBoxes(path());
    EXPECT_EQ(boxes.first(), "ftyp");
    EXPECT_EQ(boxes.count("moov"), 1);
    EXPECT_LT(boxes.indexOf("moov"), boxes.indexOf("mdat"));
    EXPECT_EQ(boxes.last(), "mdat");
}

TEST_F(H264MovieWriterFormatTest, MoreFramesThanExpectedStillMakeAMovie)
{
    MovieScene scene({320, 200});
    std::vector<QByteArray> expected;
    H264MovieWriter writer(path(), scene.image().size(), 60, 0);
    constexpr int count = 3000;
    for (int i = 0; i < count; ++i) {
        const QRegion changed = i == 0 ? QRegion(scene.image().rect()) : scene.changeAtRandom();
        writer.append({scene.image(), changed, Seconds(i / 60.0)});
        expected.push_back(lumaOf(scene.image()));
    }
    writer.finish();

    const MovieResult result = compare(expected);
    expectExactTimes(result, 60, count);
    expectGood(result.quality);
    EXPECT_EQ(movieBoxes(path()), (QList<QByteArray>{"ftyp", "free", "free", "mdat", "moov"}));
}

TEST_F(H264MovieWriterFormatTest, PicturesOfAMegabyteEachHaveTheirIndex)
{
    // Noise: each picture is a chunk of its own, more than the room in front foresees.
    H264MovieWriter writer(path(), {1280, 720}, 60, 1);
    QRandomGenerator random(1);
    QImage image(1280, 720, QImage::Format_RGB32);
    constexpr int count = 12;
    for (int i = 0; i < count; ++i) {
        random.fillRange(reinterpret_cast<quint32 *>(image.bits()), image.sizeInBytes() / 4);
        writer.append({image, image.rect(), Seconds(i / 60.0)});
    }
    writer.finish();
    EXPECT_EQ(compare({}).ticks.size(), size_t(count));
}

TEST_F(H264MovieWriterFormatTest, OneFrameIsAMovie)
{
    MovieScene scene({320, 200});
    const MovieResult result = roundTrip(scene, 30, 1, nothing);
    expectGood(result.quality);
    expectExactTimes(result, 30, 1);
    const MovieProbe probe(path());
    EXPECT_EQ(probe.duration() * 30, probe.timeScale());
}

TEST_F(H264MovieWriterFormatTest, OddSizesArePaddedToEven)
{
    for (const QSize size : {QSize(1, 1), {2, 2}, {3, 5}, {17, 33}, {1281, 801}}) {
        MovieScene scene(size);
        const MovieResult result = roundTrip(scene, 30, 8, atRandom);
        expectGood(result.quality);
        expectExactTimes(result, 30, 8);
        EXPECT_EQ(MovieProbe(path()).size(),
                  QSize((size.width() + 1) & ~1, (size.height() + 1) & ~1));
    }
}

TEST_F(H264MovieWriterFormatTest, TimesAreExactAtAnyRate)
{
    for (const int fps : {1, 7, 24, 60, 1000, 9'999, 16'711'680}) {
        MovieScene scene({16, 16});
        const MovieResult result = roundTrip(scene, fps, 20, atRandom);
        expectExactTimes(result, fps, 20);
    }
}

TEST_F(H264MovieWriterFormatTest, UnevenTimesAreKept)
{
    MovieScene scene({64, 48});
    H264MovieWriter writer(path(), scene.image().size(), 60, 4);
    for (const int i : {0, 1, 100, 107})
        writer.append({scene.image(), scene.image().rect(), Seconds(i / 60.0)});
    writer.finish();
    const qint64 tick = MovieProbe(path()).timeScale() / 60;
    EXPECT_EQ(compare({}).ticks, (std::vector<qint64>{0, tick, 100 * tick, 107 * tick}));
}

} // namespace velvane
