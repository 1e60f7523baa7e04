#include "render/layers/Backdrop.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage backdrop(QSizeF canvas, const QImage &picture = {})
{
    const QSize size(static_cast<int>(canvas.width()), static_cast<int>(canvas.height()));
    const Snapshot snap{.steps = {}, .startPoint = {}, .canvasSize = canvas, .background = picture};
    return drawnOn(size, Qt::transparent, [&](QPainter &p) { Backdrop::draw(p, snap); });
}

// Four pixels: red, green over blue, white.
QImage quarters()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(255, 0, 0));
    image.setPixel(1, 0, qRgb(0, 255, 0));
    image.setPixel(0, 1, qRgb(0, 0, 255));
    image.setPixel(1, 1, qRgb(255, 255, 255));
    return image;
}

} // namespace

TEST(Backdrop, TheGradientRunsFromTheDarkTopToTheLighterBottom)
{
    const QImage image = backdrop({64, 800});
    for (const int y : {0, 1, 200, 400, 777, 799}) {
        const double t = (y + 0.5) / 800;
        const auto level = [&](double top, double bottom) {
            return static_cast<int>(255 * (top + (bottom - top) * t) + 0.5);
        };
        const QRgb expected = qRgb(level(0.10, 0.16), level(0.11, 0.18), level(0.16, 0.26));
        for (const int x : {0, 63})
            EXPECT_LE(difference(image.pixel(x, y), expected), 1) << y;
    }
}

TEST(Backdrop, AFractionalGradientIsAnchoredAtTheBottom)
{
    // The canvas of 2.5 rows begins half a row above the picture of 2.
    const QImage image = backdrop({4, 2.5});
    for (int y = 0; y < 2; ++y) {
        const double t = (y + 0.5 + 0.5) / 2.5;
        const int blue = static_cast<int>(255 * (0.16 + 0.10 * t) + 0.5);
        EXPECT_NEAR(qBlue(image.pixel(2, y)), blue, 1);
    }
}

TEST(Backdrop, APictureOfTheCanvasSizeIsNotTouched)
{
    QImage picture(37, 23, QImage::Format_RGB32);
    for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x)
            picture.setPixel(x, y, qRgb(x * 6, y * 10, (x ^ y) * 4));
    EXPECT_EQ(difference(backdrop({37, 23}, picture), picture), 0);
}

TEST(Backdrop, APictureOfAnotherShapeIsStretchedToTheCanvas)
{
    const QImage image = backdrop({200, 40}, quarters());
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(199, 0), qRgb(0, 255, 0));
    EXPECT_EQ(image.pixel(0, 39), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(199, 39), qRgb(255, 255, 255));
    // Half way between red and green.
    EXPECT_LE(difference(image.pixel(100, 0), qRgb(127, 127, 0)), 3);
}

TEST(Backdrop, AShrunkPictureIsAveraged)
{
    QImage stripes(400, 400, QImage::Format_RGB32);
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 400; ++x)
            stripes.setPixel(x, y, x % 4 == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    const QImage image = backdrop({100, 100}, stripes);
    for (const int x : {1, 50, 98})
        EXPECT_NEAR(qRed(image.pixel(x, 50)), 64, 2);
}

TEST(Backdrop, AFractionalCanvasCutsThePictureAtTheTopAndTheRight)
{
    // One source row per canvas row: a picture of 3 rows on a canvas of 2.5 rows of pixels.
    QImage rows(1, 5, QImage::Format_RGB32);
    for (int y = 0; y < 5; ++y)
        rows.setPixel(0, y, qRgb(50 * y, 0, 0));
    const QImage image = backdrop({3.5, 5.5}, rows);
    ASSERT_EQ(image.height(), 5);
    // Row y shows the canvas from y + 0.5 to y + 1.5, that is ÷ 1.1 in source rows.
    for (const int y : {1, 2, 3}) {
        const double source = (y + 1) / 1.1 - 0.5;
        EXPECT_NEAR(qRed(image.pixel(1, y)), 50 * source, 6) << y;
    }
    // The bottom row shows the picture's last row only.
    EXPECT_NEAR(qRed(image.pixel(1, 4)), 200, 6);
}

TEST(Backdrop, ItIsOpaqueEvenWithATransparentPicture)
{
    const QImage image = backdrop({10, 10}, blank({10, 10}, QColor(255, 0, 0, 128)));
    EXPECT_LE(difference(image.pixel(5, 5), qRgb(128, 0, 0)), 1);
    const QImage fractional = backdrop({10.5, 10.5}, blank({10, 10}, Qt::transparent));
    EXPECT_EQ(fractional, blank({10, 10}, Qt::black));
}

TEST(Backdrop, EveryPictureFormatWillDo)
{
    for (const auto format :
         {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB16,
          QImage::Format_Grayscale16, QImage::Format_RGBA64, QImage::Format_RGB888}) {
        QImage picture = QImage(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QImage image = backdrop({20, 10}, picture.convertToFormat(format));
        EXPECT_LE(difference(image, blank({20, 10}, Qt::white)), 0) << format;
    }
}

TEST(Backdrop, TheCanvasStandsOnThePicturesBottomEdge)
{
    EXPECT_EQ(Backdrop::bounds({640, 480}), QRectF(0, 0, 640, 480));
    EXPECT_EQ(Backdrop::bounds({640.25, 480.75}), QRectF(0, -0.75, 640.25, 480.75));
}

} // namespace velvane
