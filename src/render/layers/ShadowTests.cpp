#include "render/layers/Shadow.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

#include <numbers>

namespace velvane {

namespace {

const QSize size(100, 100);
// Where the shape lies, and its size.
const QRect square(30, 30, 40, 40);

QImage shadowOf(const QRect &rect)
{
    const QImage shape = blank(rect.size(), Qt::red);
    return drawnOn(size, Qt::transparent,
                   [&](QPainter &p) { Shadow::draw(p, rect.topLeft(), shape); });
}

// The share of a Gaussian of deviation 3 that lies below x.
double below(double x)
{
    return 0.5 * (1 + std::erf(x / (3 * std::numbers::sqrt2)));
}

} // namespace

TEST(Shadow, IsTheSquareBlurredWithDeviation3And2PixelsDown)
{
    const QImage image = shadowOf(square);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const double across = below(x + 0.5 - 30) - below(x + 0.5 - 70);
            const double along = below(y + 0.5 - 32) - below(y + 0.5 - 72);
            ASSERT_NEAR(qAlpha(image.pixel(x, y)), 255 * 0.45 * across * along, 1) << x << ' ' << y;
        }
    }
}

TEST(Shadow, IsBlackAt45PercentUnderALargeShape)
{
    EXPECT_EQ(shadowOf(square).pixel(50, 52), qRgba(0, 0, 0, 115));
}

TEST(Shadow, KeepsTheSumOfTheShapesCoverage)
{
    const QImage image = shadowOf(square);
    double sum = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    EXPECT_NEAR(sum, 40 * 40 * 0.45, 40 * 40 * 0.45 * 0.005);
}

TEST(Shadow, TouchesNothingOutsideItsBounds)
{
    for (const QRect &rect : {square, QRect(50, 50, 1, 1), QRect(-10, 95, 30, 4)})
        EXPECT_EQ(changesOutside(Shadow::bounds(rect).toAlignedRect(), blank(size, Qt::transparent),
                                 shadowOf(rect)),
                  0);
}

TEST(Shadow, HalfCoverageCastsHalfTheShadow)
{
    QImage shape = blank(square.size(), QColor(255, 255, 255, 128));
    const QImage image = drawnOn(size, Qt::transparent,
                                 [&](QPainter &p) { Shadow::draw(p, square.topLeft(), shape); });
    EXPECT_NEAR(qAlpha(image.pixel(50, 52)), 0.45 * 128, 1);
}

} // namespace velvane
