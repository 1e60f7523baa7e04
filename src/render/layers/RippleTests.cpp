#include "render/layers/Ripple.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSize size(130, 130);

QImage rippleAt(QPointF centre, double progress, QColor under = Qt::black)
{
    return drawnOn(size, under, [&](QPainter &p) { Ripple::draw(p, centre, progress); });
}

} // namespace

TEST(Ripple, GrowsFrom8To54AndFades)
{
    const QPointF centre(64.6, 65.2);
    for (const double progress : {0.0, 0.25, 0.5, 0.9}) {
        const double radius = 8 + 46 * progress;
        const auto distance = [&](QPointF p) {
            return std::hypot(p.x() - centre.x(), p.y() - centre.y());
        };
        ExactPicture expected(size, QColor(30, 60, 90));
        expected.paint(expected.coverage([&](QPointF p) { return distance(p) <= radius; }),
                       Qt::white, (1 - progress) * 0.18);
        expected.paint(
            expected.coverage([&](QPointF p) { return std::abs(distance(p) - radius) <= 1.5; }),
            Qt::white, (1 - progress) * 0.85);
        EXPECT_LE(difference(rippleAt(centre, progress, QColor(30, 60, 90)), expected.image()), 4)
            << progress;
    }
}

TEST(Ripple, BeginsWithAFillOf18AndAStrokeOf85Percent)
{
    const QImage image = rippleAt({65, 65}, 0);
    EXPECT_LE(difference(image.pixel(65, 65), qRgb(46, 46, 46)), 1);
    // From 7 to 8 pixels off the centre: all stroke, over all fill.
    EXPECT_LE(difference(image.pixel(72, 65), qRgb(224, 224, 224)), 2);
    // From 9.5 on there is nothing.
    EXPECT_EQ(image.pixel(75, 65), qRgb(0, 0, 0));
}

TEST(Ripple, HalfWayItsCentreIsWhiteAtNinePercent)
{
    EXPECT_LE(difference(rippleAt({65, 65}, 0.5).pixel(65, 65), qRgb(23, 23, 23)), 1);
}

TEST(Ripple, EndsInvisibleWithARadiusOf54)
{
    EXPECT_EQ(rippleAt({65, 65}, 1, Qt::darkCyan), blank(size, Qt::darkCyan));
    EXPECT_GE(Ripple::bounds({65, 65}, 1).width(), 2 * (54 + 1.5));
}

TEST(Ripple, TouchesNothingOutsideItsBounds)
{
    for (const double progress : {0.0, 0.33, 0.7})
        for (const QPointF centre : {QPointF(65, 65), QPointF(60.5, 70.01), QPointF(-2.5, 128.9)})
            EXPECT_EQ(changesOutside(Ripple::bounds(centre, progress).toAlignedRect(),
                                     blank(size, Qt::gray), rippleAt(centre, progress, Qt::gray)),
                      0);
}

} // namespace velvane
