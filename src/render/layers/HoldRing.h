#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

namespace velvane {

/// The blue disc around a cursor whose button is held down. Points are in pixels of the picture.
namespace HoldRing {

/// Covers every pixel that draw() may touch.
QRectF bounds(QPointF centre);
void draw(QPainter &painter, QPointF centre);

} // namespace HoldRing

} // namespace velvane
