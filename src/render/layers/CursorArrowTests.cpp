#include "render/layers/CursorArrow.h"
#include "support/Pixels.h"

#include <QPolygonF>

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSize size(80, 90);
const QColor under(90, 170, 230);

QImage arrowAt(QPointF tip, double press, QColor background = under)
{
    return drawnOn(size, background, [&](QPainter &p) { CursorArrow::draw(p, tip, press); });
}

double distance(QPointF p, QPointF a, QPointF b)
{
    const QPointF along = b - a;
    const double t =
        std::clamp(QPointF::dotProduct(p - a, along) / QPointF::dotProduct(along, along), 0.0, 1.0);
    const QPointF off = p - (a + t * along);
    return std::hypot(off.x(), off.y());
}

QPolygonF polygon(QPointF tip, double press)
{
    const double scale = (1 - 0.16 * press) * 4 / 3;
    QPolygonF points({{0, 0}, {0, 24}, {6, 18}, {10, 27}, {14, 25}, {10, 16}, {18, 16}, {0, 0}});
    for (QPointF &point : points)
        point = tip + scale * point;
    return points;
}

// Stroke and fill, each over its own shadow, from the definition.
QImage exactArrow(QPointF tip, double press, double strokeWidth = 5)
{
    const QPolygonF arrow = polygon(tip, press);
    const auto inStroke = [&](QPointF p) {
        for (int i = 0; i + 1 < arrow.size(); ++i)
            if (distance(p, arrow[i], arrow[i + 1]) <= strokeWidth / 2)
                return true;
        return false;
    };
    const auto inFill = [&](QPointF p) { return arrow.containsPoint(p, Qt::WindingFill); };
    ExactPicture picture(size, under);
    const auto stroke = picture.coverage(inStroke);
    const auto fill = picture.coverage(inFill);
    picture.paint(picture.blurred(stroke, 3, 2), Qt::black, 0.45);
    picture.paint(stroke, Qt::white, 1);
    picture.paint(picture.blurred(fill, 3, 2), Qt::black, 0.45);
    picture.paint(fill, Qt::black, 1);
    return picture.image();
}

// The mean place of what covers a transparent picture.
QPointF centroid(const QImage &image)
{
    QPointF sum;
    double weight = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double alpha = qAlpha(image.pixel(x, y));
            sum += alpha * QPointF(x, y);
            weight += alpha;
        }
    }
    return sum / weight;
}

} // namespace

TEST(CursorArrow, AtRestItIsTheDesignAtFourThirdsWithRimAndShadows)
{
    EXPECT_LE(difference(arrowAt({20, 20}, 0), exactArrow({20, 20}, 0)), 8);
}

TEST(CursorArrow, PressedItIs16PercentSmallerButItsRimAndShadowAreNot)
{
    EXPECT_LE(difference(arrowAt({20, 20}, 1), exactArrow({20, 20}, 1)), 8);
    EXPECT_LE(difference(arrowAt({20.4, 20.7}, 0.5), exactArrow({20.4, 20.7}, 0.5)), 8);
    // The comparison would notice a rim that shrinks with the arrow.
    EXPECT_GT(difference(arrowAt({20, 20}, 1), exactArrow({20, 20}, 1, 5 * 0.84)), 40);
}

TEST(CursorArrow, TheTipStandsAtFractionsOfAPixel)
{
    const QPointF origin = centroid(arrowAt({20, 20}, 0, Qt::transparent));
    for (const QPointF offset :
         {QPointF(0.125, 0), QPointF(0.25, 0.5), QPointF(0.9, 0.1), QPointF(0.01, 0.77)}) {
        const QPointF moved =
            centroid(arrowAt(QPointF(20, 20) + offset, 0, Qt::transparent)) - origin;
        EXPECT_NEAR(moved.x(), offset.x(), 0.02);
        EXPECT_NEAR(moved.y(), offset.y(), 0.02);
        EXPECT_LE(difference(arrowAt(QPointF(20, 20) + offset, 0),
                             exactArrow(QPointF(20, 20) + offset, 0)),
                  8);
    }
}

TEST(CursorArrow, TheFillBeginsAtTheTipsColumn)
{
    // The arrow's left edge is vertical: at 20.25 a quarter of column 20 is rim, the rest is black.
    const QImage image = arrowAt({20.25, 20}, 0, Qt::white);
    const double rim = qRed(image.pixel(19, 36));
    EXPECT_NEAR(qRed(image.pixel(20, 36)), rim / 4, 6);
    EXPECT_EQ(image.pixel(21, 36), qRgb(0, 0, 0));
}

TEST(CursorArrow, MovingByWholePixelsMovesThePicture)
{
    const QImage image = arrowAt({20.3, 20.6}, 0.2);
    const QImage moved = arrowAt({27.3, 31.6}, 0.2);
    const QRect part(0, 0, 70, 75);
    EXPECT_EQ(image.copy(part), moved.copy(part.translated(7, 11)));
}

TEST(CursorArrow, TheFillsShadowDarkensTheWhiteRim)
{
    // 1 pixel left of the vertical edge, half way down: pure rim.
    const int rim = qRed(arrowAt({20, 20}, 0, Qt::white).pixel(18, 36));
    EXPECT_LT(rim, 240);
    EXPECT_GT(rim, 180);
}

TEST(CursorArrow, TheShadowIsTwoPixelsDownAtEveryScale)
{
    for (const double press : {0.0, 0.5, 1.0}) {
        // Below the tail there is only the shadow of both parts.
        const double bottom = 20 + 27 * (1 - 0.16 * press) * 4 / 3 + 2.5;
        const int y = static_cast<int>(bottom) + 3;
        const int x = static_cast<int>(20 + 10 * (1 - 0.16 * press) * 4 / 3);
        EXPECT_LE(difference(arrowAt({20, 20}, press).pixel(x, y),
                             exactArrow({20, 20}, press).pixel(x, y)),
                  2);
    }
}

TEST(CursorArrow, TouchesNothingOutsideItsBounds)
{
    for (const double press : {0.0, 0.4, 1.0})
        for (const QPointF tip :
             {QPointF(20, 20), QPointF(20.99, 19.01), QPointF(-7.5, 3.2), QPointF(79.5, 89.9)})
            EXPECT_EQ(changesOutside(CursorArrow::bounds(tip, press).toAlignedRect(),
                                     blank(size, under), arrowAt(tip, press)),
                      0);
}

} // namespace velvane
