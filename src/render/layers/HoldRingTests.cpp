#include "render/layers/HoldRing.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSize size(60, 60);

QImage ringAt(QPointF centre, QColor under)
{
    return drawnOn(size, under, [&](QPainter &p) { HoldRing::draw(p, centre); });
}

} // namespace

TEST(HoldRing, IsADiscOf15Point12WithAStrokeOf2OverIt)
{
    const QColor blue = QColor::fromRgbF(0.25F, 0.6F, 1.0F);
    for (const QPointF centre : {QPointF(30, 30), QPointF(29.3, 30.8)}) {
        ExactPicture expected(size, QColor(200, 100, 50));
        const auto distance = [&](QPointF p) {
            return std::hypot(p.x() - centre.x(), p.y() - centre.y());
        };
        expected.paint(expected.coverage([&](QPointF p) { return distance(p) <= 15.12; }), blue,
                       0.3);
        expected.paint(
            expected.coverage([&](QPointF p) { return std::abs(distance(p) - 15.12) <= 1; }), blue,
            0.85);
        EXPECT_LE(difference(ringAt(centre, QColor(200, 100, 50)), expected.image()), 4);
    }
}

TEST(HoldRing, TheDiscIsBlueAtThreeTenths)
{
    // 255 × 0.3 × (0.25, 0.6, 1) on black.
    EXPECT_LE(difference(ringAt({30, 30}, Qt::black).pixel(30, 30), qRgb(19, 46, 77)), 1);
}

TEST(HoldRing, TouchesNothingOutsideItsBounds)
{
    for (const QPointF centre : {QPointF(30, 30), QPointF(30.5, 29.01), QPointF(3.2, 59.9)})
        EXPECT_EQ(changesOutside(HoldRing::bounds(centre).toAlignedRect(), blank(size, Qt::gray),
                                 ringAt(centre, Qt::gray)),
                  0);
}

} // namespace velvane
