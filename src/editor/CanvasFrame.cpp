#include "editor/CanvasFrame.h"

#include "render/FrameRenderer.h"

#include <QPainter>

namespace velvane::CanvasFrame {

namespace {

// The canvas is moved to whole device pixels before it is drawn, and smooth edges reach further.
constexpr double slack = 2;

Snapshot canvasOnly(QSizeF canvasSize)
{
    Snapshot snap;
    snap.canvasSize = canvasSize;
    return snap;
}

// Of the rectangle that the canvas lies in, per canvas unit.
QTransform transform(const QRectF &canvas, QSizeF canvasSize)
{
    return QTransform::fromTranslate(canvas.x(), canvas.y())
        .scale(canvas.width() / std::floor(canvasSize.width()),
               canvas.height() / std::floor(canvasSize.height()));
}

} // namespace

void draw(QPainter &painter, const QRect &canvas, QSizeF canvasSize, const FrameState &state)
{
    const Snapshot snap = canvasOnly(canvasSize);
    if (FrameRenderer::pixelSize(snap).isEmpty())
        return;
    painter.save();
    painter.setClipRect(canvas, Qt::IntersectClip);
    painter.setTransform(transform(canvas, canvasSize), true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    FrameRenderer::drawOverlays(painter, snap, state);
    painter.restore();
}

QRegion bounds(const QRectF &canvas, QSizeF canvasSize, const FrameState &state)
{
    const Snapshot snap = canvasOnly(canvasSize);
    if (FrameRenderer::pixelSize(snap).isEmpty())
        return {};
    const QTransform toView = transform(canvas, canvasSize);
    QRegion region;
    for (const QRect &rect : FrameRenderer::overlayBounds(snap, state))
        region +=
            toView.mapRect(QRectF(rect)).adjusted(-slack, -slack, slack, slack).toAlignedRect();
    return region;
}

} // namespace velvane::CanvasFrame
