#pragma once

#include <QImage>
#include <QRectF>

class QPainter;

namespace velvane {

/// The soft shadow that a shape casts on what lies under it: a Gaussian of standard deviation 3,
/// black at 0.45, 2 pixels down. The same pixels on every machine.
namespace Shadow {

/// Covers the shadow of a shape within `shape`; both in pixels of the picture.
QRectF bounds(const QRectF &shape);

/// Draws the shadow of what is opaque in `shape` (Format_ARGB32_Premultiplied), a picture that
/// will lie at `topLeft`, in pixels of the painter's picture.
void draw(QPainter &painter, QPoint topLeft, const QImage &shape);

} // namespace Shadow

} // namespace velvane
