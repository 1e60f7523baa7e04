#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace velvane {

/// White text on a dark pill near the canvas's bottom edge. Rectangles are in pixels of the
/// picture; `canvas` is Backdrop::bounds(). An empty text draws nothing. Needs a QGuiApplication;
/// any thread.
namespace Caption {

/// The pill behind the text: as wide as the text needs, even beyond the canvas.
QRectF pill(const QRectF &canvas, const QString &text);

/// Covers every pixel that draw() may touch; more than the pill where glyphs stick out of it.
QRectF bounds(const QRectF &canvas, const QString &text);
void draw(QPainter &painter, const QRectF &canvas, const QString &text);

} // namespace Caption

} // namespace velvane
