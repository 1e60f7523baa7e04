#include "render/layers/Ripple.h"

#include "render/layers/Shapes.h"

#include <QPainter>

namespace velvane::Ripple {

namespace {

constexpr double firstRadius = 8;
constexpr double growth = 46;
constexpr double lineWidth = 3;
constexpr double fillAlpha = 0.18;
constexpr double lineAlpha = 0.85;
constexpr double antialiasing = 1;

double radiusAt(double progress)
{
    return firstRadius + growth * progress;
}

QColor white(double alpha)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(alpha));
}

} // namespace

QRectF bounds(QPointF centre, double progress)
{
    const double reach = radiusAt(progress) + lineWidth / 2 + antialiasing;
    return {centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach};
}

void draw(QPainter &painter, QPointF centre, double progress)
{
    const double radius = radiusAt(progress);
    const double fade = 1 - progress;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(Shapes::disc(centre, radius), white(fade * fillAlpha));
    painter.fillPath(Shapes::ring(centre, radius, lineWidth), white(fade * lineAlpha));
}

} // namespace velvane::Ripple
