#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

namespace velvane {

/// Outlines as polygons so fine that no edge is off by more than a fiftieth of a pixel; the
/// painter's own curves and strokes are off by a quarter. To be filled antialiased.
namespace Shapes {

QPainterPath disc(QPointF centre, double radius);

/// What a pen of `width` covers on a circle.
QPainterPath ring(QPointF centre, double radius, double width);

/// A rectangle with circular corners; a radius above half a side is cut to that.
QPainterPath roundedRect(const QRectF &rect, double radius);

/// What a pen of `width` with round joins covers on a closed polygon that runs counter-clockwise
/// as seen on the screen. Its edges must be long enough for half the width beside them.
QPainterPath band(const QPolygonF &polygon, double width);

} // namespace Shapes

} // namespace velvane
