#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

namespace velvane {

/// The white circle that grows and fades from a click. Points are in pixels of the picture,
/// progress runs from 0 to 1.
namespace Ripple {

/// Covers every pixel that draw() may touch.
QRectF bounds(QPointF centre, double progress);
void draw(QPainter &painter, QPointF centre, double progress);

} // namespace Ripple

} // namespace velvane
