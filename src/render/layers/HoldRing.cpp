#include "render/layers/HoldRing.h"

#include "render/layers/Shapes.h"

#include <QPainter>

namespace velvane::HoldRing {

namespace {

constexpr double radius = 15.12;
constexpr double lineWidth = 2.0;
constexpr double antialiasing = 1.0;

QColor blue(double alpha)
{
    return QColor::fromRgbF(0.25F, 0.6F, 1.0F, static_cast<float>(alpha));
}

} // namespace

QRectF bounds(QPointF centre)
{
    constexpr double reach = radius + lineWidth / 2 + antialiasing;
    return {centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach};
}

void draw(QPainter &painter, QPointF centre)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(Shapes::disc(centre, radius), blue(0.3));
    painter.fillPath(Shapes::ring(centre, radius, lineWidth), blue(0.85));
}

} // namespace velvane::HoldRing
