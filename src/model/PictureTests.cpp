#include "model/Picture.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage sample()
{
    QImage picture(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            picture.setPixel(x, y, qRgba(x * 30, y * 40, 200 - x * y, 255 - x));
    return picture;
}

} // namespace

TEST(Picture, ComesBackFromPngWithEveryPixel)
{
    const auto bytes = Picture::encoded(sample());
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->startsWith("\x89PNG"));
    EXPECT_EQ(Picture::decoded(*bytes), sample());
}

TEST(Picture, NoPictureIsNotEncoded)
{
    EXPECT_FALSE(Picture::encoded(QImage()));
}

TEST(Picture, OtherFormatsAreReadToo)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(sample().convertToFormat(QImage::Format_RGB32).save(&buffer, "BMP"));
    EXPECT_EQ(Picture::decoded(bytes).size(), QSize(7, 5));
}

TEST(Picture, BytesThatAreNoPictureGiveNone)
{
    EXPECT_TRUE(Picture::decoded("").isNull());
    EXPECT_TRUE(Picture::decoded("not a picture").isNull());
    EXPECT_TRUE(Picture::decoded(Picture::encoded(sample())->left(20)).isNull());
}

TEST(Picture, ALargeScreenIsNotLostToTheDefaultMemoryLimit)
{
    QImage large(8000, 5000, QImage::Format_RGB32);
    large.fill(Qt::blue);
    EXPECT_EQ(Picture::decoded(*Picture::encoded(large)).size(), large.size());
}

TEST(Picture, ASidePastTheBoundIsRefused)
{
    QImage wide(16385, 1, QImage::Format_Mono);
    wide.fill(0);
    EXPECT_TRUE(Picture::decoded(*Picture::encoded(wide)).isNull());
    EXPECT_FALSE(Picture::decoded(*Picture::encoded(wide.copy(0, 0, 16384, 1))).isNull());
}

} // namespace velvane
