#include "media/Yuv420Converter.h"

#include <QColor>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace velvane {

namespace {

QImage noise(QSize size, quint32 seed)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = random.generate() | 0xff000000u;
    }
    return image;
}

struct Planes {
    std::vector<quint8> luma;
    std::vector<quint8> cb;
    std::vector<quint8> cr;
    bool operator==(const Planes &) const = default;
};

std::vector<quint8> samplesOf(Yuv420Converter::Plane plane, QSize size)
{
    std::vector<quint8> samples;
    for (int y = 0; y < size.height(); ++y)
        samples.insert(samples.end(), plane.samples + y * plane.stride,
                       plane.samples + y * plane.stride + size.width());
    return samples;
}

Planes planesOf(const Yuv420Converter &converter)
{
    const QSize size = converter.paddedSize();
    return {samplesOf(converter.luma(), size), samplesOf(converter.cb(), size / 2),
            samplesOf(converter.cr(), size / 2)};
}

Planes converted(const QImage &image, YuvRows::Convert rows = YuvRows::fastest())
{
    Yuv420Converter converter(image.size(), rows);
    converter.convert(image, image.rect());
    return planesOf(converter);
}

struct Exact {
    double luma;
    double cb;
    double cr;
};

// BT.709 by its definition: weights of red and blue, limited range.
Exact exactly(double red, double green, double blue)
{
    const double y = 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    return {16 + y * 219 / 255, 128 + (blue - y) / 1.8556 * 224 / 255,
            128 + (red - y) / 1.5748 * 224 / 255};
}

// Coordinates beyond the last column or row mean that column or row.
Exact meanOfFour(const QImage &image, int x, int y)
{
    double red = 0;
    double green = 0;
    double blue = 0;
    for (const auto &[dx, dy] : {std::pair{0, 0}, {1, 0}, {0, 1}, {1, 1}}) {
        const QRgb pixel =
            image.pixel(std::min(x + dx, image.width() - 1), std::min(y + dy, image.height() - 1));
        red += qRed(pixel) / 4.0;
        green += qGreen(pixel) / 4.0;
        blue += qBlue(pixel) / 4.0;
    }
    return exactly(red, green, blue);
}

// Half a step of rounding, and 0.02 for weights of 15 and 16 bits.
constexpr double tolerance = 0.52;

void expectExact(const QImage &image, const Planes &planes)
{
    const QSize padded((image.width() + 1) & ~1, (image.height() + 1) & ~1);
    for (int y = 0; y < padded.height(); ++y) {
        for (int x = 0; x < padded.width(); ++x) {
            const QRgb pixel =
                image.pixel(std::min(x, image.width() - 1), std::min(y, image.height() - 1));
            ASSERT_NEAR(planes.luma[size_t(y * padded.width() + x)],
                        exactly(qRed(pixel), qGreen(pixel), qBlue(pixel)).luma, tolerance)
                << x << ", " << y;
        }
    }
    for (int y = 0; y < padded.height(); y += 2) {
        for (int x = 0; x < padded.width(); x += 2) {
            const Exact mean = meanOfFour(image, x, y);
            const auto at = size_t(y / 2 * (padded.width() / 2) + x / 2);
            ASSERT_NEAR(planes.cb[at], mean.cb, tolerance) << x << ", " << y;
            ASSERT_NEAR(planes.cr[at], mean.cr, tolerance) << x << ", " << y;
        }
    }
}

QImage filled(QRgb colour)
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

TEST(Yuv420Converter, KnownColoursHaveTheirStandardValues)
{
    EXPECT_EQ(converted(filled(qRgb(0, 0, 0))), (Planes{{16, 16, 16, 16}, {128}, {128}}));
    EXPECT_EQ(converted(filled(qRgb(255, 255, 255))), (Planes{{235, 235, 235, 235}, {128}, {128}}));
    EXPECT_EQ(converted(filled(qRgb(255, 0, 0))), (Planes{{63, 63, 63, 63}, {102}, {240}}));
    EXPECT_EQ(converted(filled(qRgb(0, 255, 0))), (Planes{{173, 173, 173, 173}, {42}, {26}}));
    EXPECT_EQ(converted(filled(qRgb(0, 0, 255))), (Planes{{32, 32, 32, 32}, {240}, {118}}));
}

TEST(Yuv420Converter, EveryGreyIsWithoutColour)
{
    for (int grey = 0; grey < 256; ++grey) {
        const Planes planes = converted(filled(qRgb(grey, grey, grey)));
        EXPECT_EQ(planes.cb[0], 128) << grey;
        EXPECT_EQ(planes.cr[0], 128) << grey;
    }
}

TEST(Yuv420Converter, PlainCodeIsWithinRoundingOfTheDefinition)
{
    const QImage image = noise({318, 200}, 1);
    expectExact(image, converted(image, YuvRows::convertPlain));
}

TEST(Yuv420Converter, QuickCodeEqualsThePlainCode)
{
    if (!YuvRows::avx2())
        GTEST_SKIP() << "this processor has no AVX2";
    for (int width = 1; width <= 70; ++width) {
        const QImage image = noise({width, 6}, quint32(width));
        EXPECT_EQ(converted(image, YuvRows::avx2()), converted(image, YuvRows::convertPlain))
            << width;
    }
}

TEST(Yuv420Converter, QuickCodeEqualsThePlainCodeForExtremeColours)
{
    if (!YuvRows::avx2())
        GTEST_SKIP() << "this processor has no AVX2";
    QImage image(64, 64, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(
                x, y,
                qRgb(random.bounded(2) * 255, random.bounded(2) * 255, random.bounded(2) * 255));
    EXPECT_EQ(converted(image, YuvRows::avx2()), converted(image, YuvRows::convertPlain));
}

TEST(Yuv420Converter, OddSizesRepeatTheLastColumnAndRow)
{
    for (const QSize size : {QSize(1, 1), {1, 2}, {2, 1}, {3, 5}, {17, 33}, {33, 17}, {65, 4}}) {
        const QImage image = noise(size, quint32(size.width() * 100 + size.height()));
        expectExact(image, converted(image));
    }
}

TEST(Yuv420Converter, ChangedRectanglesAreEnough)
{
    QRandomGenerator random(3);
    for (const QSize size : {QSize(64, 48), {67, 49}, {33, 32}, {32, 33}}) {
        QImage image = noise(size, 4);
        Yuv420Converter converter(size);
        converter.convert(image, image.rect());
        for (int round = 0; round < 200; ++round) {
            const QPoint corner(random.bounded(size.width()), random.bounded(size.height()));
            const QRect rect(corner, QSize(random.bounded(1, size.width() - corner.x() + 1),
                                           random.bounded(1, size.height() - corner.y() + 1)));
            const QImage patch = noise(rect.size(), random.generate());
            for (int y = 0; y < rect.height(); ++y)
                for (int x = 0; x < rect.width(); ++x)
                    image.setPixel(rect.x() + x, rect.y() + y, patch.pixel(x, y));
            converter.convert(image, rect);
            ASSERT_EQ(planesOf(converter), converted(image)) << round;
        }
    }
}

TEST(Yuv420Converter, SinglePixelAtTheLastOddCornerIsConverted)
{
    QImage image(5, 7, QImage::Format_RGB32);
    image.fill(Qt::black);
    Yuv420Converter converter(image.size());
    converter.convert(image, image.rect());
    image.setPixel(4, 6, qRgb(255, 255, 255));

    converter.convert(image, QRect(4, 6, 1, 1));

    EXPECT_EQ(planesOf(converter), converted(image));
    EXPECT_EQ(planesOf(converter).luma.back(), 235);
}

TEST(Yuv420Converter, NothingOutsideTheChangedPixelsIsTouched)
{
    const QImage black = filled(Qt::black).scaled(32, 32);
    const QImage white = filled(qRgb(255, 255, 255)).scaled(32, 32);
    Yuv420Converter converter(black.size());
    converter.convert(black, black.rect());

    converter.convert(white, QRect(8, 10, 4, 2));

    const Planes planes = planesOf(converter);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            EXPECT_EQ(planes.luma[size_t(y * 32 + x)],
                      QRect(8, 10, 4, 2).contains(x, y) ? 235 : 16);
}

TEST(Yuv420Converter, RegionsBeyondThePictureAreClipped)
{
    const QImage image = noise({21, 19}, 9);
    Yuv420Converter converter(image.size());
    converter.convert(image, QRegion(-50, -50, 500, 500));
    converter.convert(image, QRegion(21, 0, 10, 10));
    EXPECT_EQ(planesOf(converter), converted(image));
}

TEST(Yuv420Converter, OtherPictureFormatsAreReadToo)
{
    const QImage image = noise({30, 20}, 11);
    EXPECT_EQ(converted(image.convertToFormat(QImage::Format_ARGB32_Premultiplied)),
              converted(image));
    EXPECT_EQ(converted(image.convertToFormat(QImage::Format_RGB888)), converted(image));
}

} // namespace velvane
