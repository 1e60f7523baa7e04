#pragma once

#include "model/Snapshot.h"

class QPainter;

namespace velvane {

/// What lies behind everything: the demo's picture, or a blue-grey gradient.
namespace Backdrop {

/// Where the canvas lies in the picture, in pixels: all of it, with the cut-off fractions sticking
/// out at the right and at the top, because the canvas stands on the picture's bottom edge.
QRectF bounds(QSizeF canvas);

/// Covers the whole picture with opaque pixels.
void draw(QPainter &painter, const Snapshot &snap);

} // namespace Backdrop

} // namespace velvane
