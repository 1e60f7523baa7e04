#include "render/ExporterFixture.h"

#include "render/ExportError.h"
#include "render/FrameRenderer.h"
#include "support/PictureQuality.h"
#include "support/Print.h"
#include "timeline/Timeline.h"

#include <limits>

namespace velvane {

namespace {

QImage landscape()
{
    QImage image(300, 200, QImage::Format_RGB32);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x)
            image.setPixel(x, y, qRgb(60 + x / 2, 200 - y / 2, (x / 20 + y / 20) % 2 ? 90 : 160));
    return image;
}

// BT.709 luma in limited range, with the last column and row repeated up to even sides.
QByteArray lumaOf(const QImage &image, QSize size)
{
    QByteArray luma;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb p =
                image.pixel(std::min(x, image.width() - 1), std::min(y, image.height() - 1));
            const double grey = 0.2126 * qRed(p) + 0.7152 * qGreen(p) + 0.0722 * qBlue(p);
            luma += static_cast<char>(std::lround(16 + 219 * grey / 255));
        }
    }
    return luma;
}

class ExporterTest : public ExporterFixture {
protected:
    // The movie against the renderer, frame by frame.
    void expectWhatTheRendererDraws(const Snapshot &snap)
    {
        const Timeline timeline(snap);
        MovieProbe probe(m_path);
        PictureQuality quality;
        qint64 count = 0;
        while (const auto picture = probe.next()) {
            ASSERT_EQ(picture->ticks * snap.fps, count * probe.timeScale());
            const QImage frame =
                FrameRenderer::image(snap, timeline.state(Seconds(double(count) / snap.fps)));
            quality.add(picture->size, lumaOf(frame, picture->size), picture->luma);
            ++count;
        }
        EXPECT_EQ(count, Exporter::frameCount(snap));
        EXPECT_GE(quality.overall(), 50);
        EXPECT_GE(quality.worstMacroblock(), 38);
    }
};

} // namespace

TEST(ExporterFrameCount, IsTheLengthTimesTheRateRoundedUp)
{
    EXPECT_EQ(Exporter::frameCount(demo({pause(2.01s)}, 30)), 61);
    EXPECT_EQ(Exporter::frameCount(demo({pause(2.0s)}, 30)), 60);
    EXPECT_EQ(Exporter::frameCount(demo({pause(0.5s)}, 60)), 30);
    // 0.1 + 0.2 is a little above 0.3 in doubles.
    EXPECT_EQ(Exporter::frameCount(demo({pause(0.1s), pause(0.2s)}, 10)), 4);
}

TEST(ExporterFrameCount, IsAtLeastOne)
{
    EXPECT_EQ(Exporter::frameCount(demo({}, 60)), 1);
    EXPECT_EQ(Exporter::frameCount(demo({pause(0s)}, 60)), 1);
}

TEST(ExporterFrameCount, AssumesOneFramePerSecondWithoutARate)
{
    for (const int fps : {0, -5})
        EXPECT_EQ(Exporter::frameCount(demo({pause(2.5s)}, fps)), 3);
}

TEST(ExporterFrameCount, IsNoneWhereNoMovieIsLongEnough)
{
    for (const double length : {std::numeric_limits<double>::infinity(), 1e300, 1e12})
        EXPECT_EQ(Exporter::frameCount(demo({pause(Seconds(length))}, 60)), 0);
    EXPECT_EQ(Exporter::frameCount(demo({pause(Seconds(1e6))}, 60)), 60'000'000);
}

TEST_F(ExporterTest, AnEmptyDemoIsOneFrameAtTimeZero)
{
    run(demo({}, 60));
    EXPECT_EQ(times(), std::vector<double>{0});
    EXPECT_EQ(m_progress, std::vector<double>{1});
}

TEST_F(ExporterTest, TheLastOf61FramesIsAt2Seconds)
{
    run(demo({pause(2.01s)}, 30));
    ASSERT_EQ(times().size(), 61U);
    EXPECT_EQ(times().back(), 2.0);
    for (int i = 0; i < 61; ++i)
        EXPECT_EQ(times()[i], i / 30.0);
}

TEST_F(ExporterTest, WithoutARateThereIsOneFramePerSecond)
{
    for (const int fps : {0, -1}) {
        run(demo({pause(2.5s)}, fps));
        EXPECT_EQ(times(), (std::vector<double>{0, 1, 2}));
    }
}

TEST_F(ExporterTest, ProgressIsSentOncePerFrameAndEndsWithOne)
{
    run(demo(tour(), 60));
    const qint64 count = Exporter::frameCount(demo(tour(), 60));
    ASSERT_EQ(m_progress.size(), count);
    for (qint64 i = 0; i < count; ++i)
        EXPECT_EQ(m_progress[i], double(i + 1) / double(count));
    EXPECT_TRUE(saidDone());
    EXPECT_FALSE(m_elsewhere);
}

TEST_F(ExporterTest, TheMainThreadStaysLive)
{
    QObject context;
    int turns = 0;
    const std::function<void()> turn = [&] {
        ++turns;
        QMetaObject::invokeMethod(&context, turn, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&context, turn, Qt::QueuedConnection);
    run(demo({pause(2s)}, 30));
    EXPECT_GT(turns, 10);
}

TEST_F(ExporterTest, AnExistingFileIsReplaced)
{
    writeOldFile();
    run(demo({}, 60));
    EXPECT_EQ(times().size(), 1U);
}

TEST_F(ExporterTest, EveryFrameShowsWhatTheRendererDraws)
{
    Snapshot snap = demo(tour(), 30, {300, 200});
    snap.background = landscape();
    run(snap);
    expectWhatTheRendererDraws(snap);
}

TEST_F(ExporterTest, OddAndFractionalCanvasesToo)
{
    for (const QSizeF canvas :
         {QSizeF(241, 161), QSizeF(250.7, 130.4), QSizeF(1, 1), QSizeF(3.5, 40)}) {
        const Snapshot snap = demo(tour(), 24, canvas);
        run(snap);
        expectWhatTheRendererDraws(snap);
    }
}

} // namespace velvane
