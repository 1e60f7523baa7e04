#include "render/layers/Shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velvane::Shapes {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;

// Appends the points from one angle to another, in radians, both included.
void appendArc(QPolygonF &polygon, QPointF centre, double radius, double from, double to)
{
    // With 16 √r pieces to the turn, a piece leaves its circle by a fiftieth of a pixel.
    const double perTurn = 16 * std::ceil(std::sqrt(std::max(radius, 1.0)));
    const int pieces = 1 + static_cast<int>(std::abs(to - from) / fullTurn * perTurn);
    for (int i = 0; i <= pieces; ++i) {
        const double angle = from + (to - from) * i / pieces;
        polygon << centre + radius * QPointF(std::cos(angle), std::sin(angle));
    }
}

QPolygonF circle(QPointF centre, double radius)
{
    QPolygonF polygon;
    appendArc(polygon, centre, radius, 0, fullTurn);
    return polygon;
}

QPainterPath pathOf(const QPolygonF &polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

// The unit normal to the right of an edge as seen on the screen of one walking along it, which is
// outwards on a counter-clockwise polygon.
QPointF normal(QPointF from, QPointF to)
{
    const QPointF along = to - from;
    return QPointF(-along.y(), along.x()) / std::hypot(along.x(), along.y());
}

// The corner moved away by `distance` (negative: inwards): an arc where that opens a gap between
// the moved edges, the point where they meet elsewhere.
void appendMovedCorner(QPolygonF &moved, QPointF corner, QPointF before, QPointF after,
                       double distance)
{
    const double turn = std::atan2(before.x() * after.y() - before.y() * after.x(),
                                   QPointF::dotProduct(before, after));
    if (turn * distance < 0) {
        const double start = std::atan2(before.y(), before.x());
        const double flip = distance < 0 ? std::numbers::pi : 0;
        appendArc(moved, corner, std::abs(distance), start + flip, start + turn + flip);
    } else {
        const QPointF both = before + after;
        moved << corner + both * (distance / (1 + QPointF::dotProduct(before, after)));
    }
}

QPolygonF moved(const QPolygonF &polygon, double distance)
{
    QPolygonF result;
    const qsizetype count = polygon.size();
    for (qsizetype i = 0; i < count; ++i) {
        const QPointF corner = polygon[i];
        appendMovedCorner(result, corner, normal(polygon[(i + count - 1) % count], corner),
                          normal(corner, polygon[(i + 1) % count]), distance);
    }
    return result;
}

} // namespace

QPainterPath disc(QPointF centre, double radius)
{
    return pathOf(circle(centre, radius));
}

QPainterPath ring(QPointF centre, double radius, double width)
{
    QPainterPath path = disc(centre, radius + width / 2);
    path.addPath(disc(centre, radius - width / 2));
    return path;
}

QPainterPath roundedRect(const QRectF &rect, double radius)
{
    const double r = std::min({radius, rect.width() / 2, rect.height() / 2});
    const QRectF centres = rect.adjusted(r, r, -r, -r);
    const QPointF corners[] = {centres.bottomRight(), centres.bottomLeft(), centres.topLeft(),
                               centres.topRight()};
    QPolygonF polygon;
    for (int i = 0; i < 4; ++i)
        appendArc(polygon, corners[i], r, i * fullTurn / 4, (i + 1) * fullTurn / 4);
    return pathOf(polygon);
}

QPainterPath band(const QPolygonF &polygon, double width)
{
    QPainterPath path = pathOf(moved(polygon, width / 2));
    path.addPath(pathOf(moved(polygon, -width / 2)));
    return path;
}

} // namespace velvane::Shapes
