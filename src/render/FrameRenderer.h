#pragma once

#include "model/Snapshot.h"
#include "timeline/FrameState.h"

#include <QRegion>

class QPainter;

namespace velvane {

/// Draws one frame of a demo: the definition of every pixel of preview and export. Needs a
/// QGuiApplication for the caption's text; any thread.
///
/// Pictures are Format_ARGB32_Premultiplied, opaque, of pixelSize(); painters that are passed in
/// paint on such a picture and are not transformed, but where it is said otherwise.
namespace FrameRenderer {

/// The canvas in whole pixels, fractions cut off; 0 × 0 when a side is below 1 pixel, above 16,384
/// or no number.
QSize pixelSize(const Snapshot &snap);

/// The frame as a picture; null when pixelSize() is empty or memory runs out.
QImage image(const Snapshot &snap, const FrameState &state);

/// Draws the backdrop: the background stretched over the canvas, or the default gradient.
void drawBackdrop(QPainter &painter, const Snapshot &snap);

/// Draws what lies over the backdrop: ring, ripple, cursor, caption. Painters moved by whole pixels
/// get the same pixels, scaled ones the same shapes.
void drawOverlays(QPainter &painter, const Snapshot &snap, const FrameState &state);

/// The pixels that drawOverlays() may touch, within the picture.
QRegion overlayBounds(const Snapshot &snap, const FrameState &state);

} // namespace FrameRenderer

} // namespace velvane
