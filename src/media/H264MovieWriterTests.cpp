#include "media/H264MovieWriter.h"

#include "media/MovieError.h"

#include "support/MovieRoundTrip.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class H264MovieWriterTest : public MovieRoundTrip {};

} // namespace

TEST_F(H264MovieWriterTest, RandomChangesAreAllSeen)
{
    for (const quint32 seed : {1u, 2u, 3u}) {
        MovieScene scene({320, 200}, seed);
        const MovieResult result = roundTrip(scene, 60, 400, atRandom);
        expectGood(result.quality);
        expectExactTimes(result, 60, 400);
    }
}

TEST_F(H264MovieWriterTest, RandomChangesOfAnOddSizeAreAllSeen)
{
    MovieScene scene({321, 201}, 5);
    const MovieResult result = roundTrip(scene, 30, 300, atRandom);
    expectGood(result.quality);
    expectExactTimes(result, 30, 300);
}

TEST_F(H264MovieWriterTest, SinglePixelsAreSeenInEveryCornerAndOnMacroblockEdges)
{
    MovieScene scene({210, 115});
    const std::vector<QPoint> places{{0, 0},   {209, 0}, {0, 114}, {209, 114}, {15, 15},
                                     {16, 16}, {15, 16}, {16, 15}, {31, 32},   {32, 31}};
    const auto result = roundTrip(scene, 60, 200, [&](MovieScene &now, int i) {
        return now.fill(QRect(places[size_t(i) % places.size()], QSize(1, 1)),
                        i / 10 % 2 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    });
    expectGood(result.quality);
}

TEST_F(H264MovieWriterTest, MovingRectangleLeavesNoTrace)
{
    MovieScene scene({320, 200});
    const auto result = roundTrip(scene, 60, 300, [](MovieScene &now, int i) {
        const QRegion gone = now.restore(QRect(i - 1, i / 3, 30, 40));
        return gone + now.fill(QRect(i, (i + 1) / 3, 30, 40), qRgb(255, 255, 255));
    });
    expectGood(result.quality);
}

// The guard of all tests above: were a change left out, they would fail.
TEST_F(H264MovieWriterTest, ChangeThatIsNotReportedShowsAsABadMacroblock)
{
    MovieScene scene({320, 200});
    const auto result = roundTrip(scene, 60, 10, [](MovieScene &now, int i) {
        if (i == 5)
            now.fill(QRect(100, 100, 4, 4), qRgb(255, 0, 0));
        return QRegion();
    });
    EXPECT_LT(result.quality.worstMacroblock(), 38);
}

TEST_F(H264MovieWriterTest, StillMovieStaysAsGoodAsItsFirstPicture)
{
    MovieScene scene({320, 200});
    const MovieResult result = roundTrip(scene, 60, 300, nothing);
    expectGood(result.quality);
    expectExactTimes(result, 60, 300);
}

TEST_F(H264MovieWriterTest, ColoursAreKept)
{
    MovieScene scene({64, 48});
    scene.fill(scene.image().rect(), qRgb(255, 0, 0));
    roundTrip(scene, 60, 2,
              [](MovieScene &now, int) { return now.fill(QRect(32, 0, 32, 48), qRgb(0, 0, 255)); });
    MovieProbe probe(path());
    probe.next();
    const auto picture = probe.next();
    ASSERT_TRUE(picture);
    const auto expectColour = [&](int at, int cb, int cr) {
        EXPECT_NEAR(quint8(picture->cb[at]), cb, 2);
        EXPECT_NEAR(quint8(picture->cr[at]), cr, 2);
    };
    expectColour(12 * 32 + 8, 102, 240);
    expectColour(12 * 32 + 24, 240, 118);
}

TEST_F(H264MovieWriterTest, LargestPictureIsAMovie)
{
    const QSize size(16'384, 2'176);
    MovieScene scene(size);
    const MovieResult result = roundTrip(scene, 120, 2, [&](MovieScene &now, int) {
        return now.fill(QRect(size.width() - 9, size.height() - 9, 9, 9), qRgb(0, 0, 0));
    });
    expectGood(result.quality);
    EXPECT_EQ(MovieProbe(path()).size(), size);
}

TEST_F(H264MovieWriterTest, FrameIsNotKept)
{
    MovieScene scene({64, 48});
    H264MovieWriter writer(path(), scene.image().size(), 60, 2);
    writer.append({scene.image(), scene.image().rect(), Seconds(0)});
    EXPECT_TRUE(scene.image().isDetached());
}

TEST_F(H264MovieWriterTest, FramesMustFollowEachOther)
{
    MovieScene scene({64, 48});
    H264MovieWriter writer(path(), scene.image().size(), 60, 4);
    writer.append({scene.image(), scene.image().rect(), Seconds(1)});
    EXPECT_THROW(writer.append({scene.image(), {}, Seconds(1)}), MovieError);
}

TEST_F(H264MovieWriterTest, FramesOfAnotherSizeAreRefused)
{
    H264MovieWriter writer(path(), {64, 48}, 60, 4);
    const QImage other(48, 64, QImage::Format_RGB32);
    EXPECT_THROW(writer.append({other, other.rect(), Seconds(0)}), MovieError);
}

} // namespace velvane
