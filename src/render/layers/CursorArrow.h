#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

namespace velvane {

/// The mouse pointer: a black arrow with a white rim and a shadow. Points are in pixels of the
/// picture; `press` runs from 0 (up) to 1 (down). A scaled painter gets edges as sharp.
namespace CursorArrow {

/// Covers every pixel that draw() may touch.
QRectF bounds(QPointF tip, double press);
void draw(QPainter &painter, QPointF tip, double press);

} // namespace CursorArrow

} // namespace velvane
