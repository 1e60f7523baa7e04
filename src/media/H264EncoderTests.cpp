#include "media/H264Encoder.h"

#include "media/Mp4Muxer.h"

#include "support/MovieProbe.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

// Three pictures of which the second turns a square from black to white; returns the luma in its
// middle, picture by picture, when the encoder is told of the given change.
std::vector<int> lumaOfSquare(const QRegion &told)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.mp4"));
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::black);
    Yuv420Converter converter(image.size());
    converter.convert(image, image.rect());

    H264Encoder encoder(image.size(), 60);
    MovieFile file(path);
    Mp4Muxer muxer(file, {image.size(), 60, encoder.configuration()}, 3);
    for (int i = 0; i < 3; ++i) {
        if (i == 1) {
            image.fill(Qt::white);
            converter.convert(image, QRect(16, 16, 16, 16));
        }
        if (const auto picture = encoder.encode(converter, i == 1 ? told : QRegion(), i))
            muxer.write(*picture);
    }
    while (const auto picture = encoder.drain())
        muxer.write(*picture);
    muxer.finish();
    file.close();

    std::vector<int> luma;
    MovieProbe probe(path);
    while (const auto picture = probe.next())
        luma.push_back(quint8(picture->luma[24 * 64 + 24]));
    return luma;
}

} // namespace

TEST(H264Encoder, ChangeIsShownWhereItIsReported)
{
    const std::vector<int> luma = lumaOfSquare(QRect(16, 16, 16, 16));
    ASSERT_EQ(luma.size(), 3u);
    EXPECT_NEAR(luma[0], 16, 2);
    EXPECT_NEAR(luma[1], 235, 2);
    EXPECT_NEAR(luma[2], 235, 2);
}

TEST(H264Encoder, OnePixelMarksItsWholeMacroblock)
{
    const std::vector<int> luma = lumaOfSquare(QRect(31, 31, 1, 1));
    ASSERT_EQ(luma.size(), 3u);
    EXPECT_NEAR(luma[1], 235, 2);
}

// So that a macroblock marked wrongly cannot pass the comparisons of whole movies unseen.
TEST(H264Encoder, ChangeThatIsNotReportedIsNotShown)
{
    const std::vector<int> luma =
        lumaOfSquare(QRegion(QRect(32, 32, 16, 16)) + QRect(0, 0, 16, 64));
    ASSERT_EQ(luma.size(), 3u);
    EXPECT_NEAR(luma[1], 16, 2);
    EXPECT_NEAR(luma[2], 16, 2);
}

} // namespace velvane
