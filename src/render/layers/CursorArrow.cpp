#include "render/layers/CursorArrow.h"

#include "render/layers/Shadow.h"
#include "render/layers/Shapes.h"

#include <QPainter>

#include <array>

namespace velvane::CursorArrow {

namespace {

// The tip, which is the hot spot, is the origin.
constexpr std::array<QPointF, 7> design = {QPointF(0, 0),   QPointF(0, 24),  QPointF(6, 18),
                                           QPointF(10, 27), QPointF(14, 25), QPointF(10, 16),
                                           QPointF(18, 16)};
constexpr double restingScale = 4.0 / 3.0;
constexpr double shrinkage = 0.16;
// Half of the stroke lies under the fill: what shows is a rim of 2.5 pixels, pressed or not.
constexpr double strokeWidth = 5;
constexpr double antialiasing = 1;

QPolygonF outline(QPointF tip, double press)
{
    const double scale = (1 - shrinkage * press) * restingScale;
    QPolygonF polygon;
    for (const QPointF &corner : design)
        polygon << tip + corner * scale;
    return polygon;
}

// All that the stroked outline touches.
QRectF reach(const QPolygonF &arrow)
{
    constexpr double rim = strokeWidth / 2 + antialiasing;
    return arrow.boundingRect().adjusted(-rim, -rim, rim, rim);
}

// Painted apart, because the shadow is made of the very coverage that is then drawn.
void drawWithShadow(QPainter &painter, const QPainterPath &path, QColor colour, const QRect &area)
{
    QImage shape(area.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter shaper(&shape);
    shaper.setRenderHint(QPainter::Antialiasing);
    shaper.translate(-area.topLeft());
    shaper.fillPath(path, colour);
    shaper.end();
    Shadow::draw(painter, area.topLeft(), shape);
    // On a scaled preview the picture would blur; only the shadow may.
    if (painter.deviceTransform().type() <= QTransform::TxTranslate) {
        painter.drawImage(area.topLeft(), shape);
    } else {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(path, colour);
    }
}

} // namespace

QRectF bounds(QPointF tip, double press)
{
    const QRectF area = reach(outline(tip, press));
    return area | Shadow::bounds(area);
}

void draw(QPainter &painter, QPointF tip, double press)
{
    const QPolygonF arrow = outline(tip, press);
    const QRect area = reach(arrow).toAlignedRect();
    QPainterPath inside;
    inside.setFillRule(Qt::WindingFill);
    inside.addPolygon(arrow);
    drawWithShadow(painter, Shapes::band(arrow, strokeWidth), Qt::white, area);
    // The fill's own shadow darkens the white rim.
    drawWithShadow(painter, inside, Qt::black, area);
}

} // namespace velvane::CursorArrow
