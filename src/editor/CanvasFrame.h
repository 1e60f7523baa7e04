#pragma once

#include "base/Seconds.h"
#include "timeline/FrameState.h"

#include <QRectF>
#include <QRegion>
#include <QSizeF>

class QPainter;

namespace velvane {

/// The frame's cursor, ring, ripple and caption over the canvas, by the layers that export uses.
namespace CanvasFrame {

/// The painter is in device pixels; `canvas` is where the canvas lies there. At the canvas's own
/// size the pixels are FrameRenderer's.
void draw(QPainter &painter, const QRect &canvas, QSizeF canvasSize, const FrameState &state);

/// What draw() may touch when the canvas lies at `canvas`, both in view points.
QRegion bounds(const QRectF &canvas, QSizeF canvasSize, const FrameState &state);

} // namespace CanvasFrame

} // namespace velvane
