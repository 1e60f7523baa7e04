#include "render/FrameRenderer.h"

#include "render/layers/Backdrop.h"
#include "render/layers/Caption.h"
#include "render/layers/CursorArrow.h"
#include "render/layers/HoldRing.h"
#include "render/layers/Ripple.h"

#include <QPainter>

#include <vector>

namespace velvane::FrameRenderer {

namespace {

constexpr int maxSide = 16384;

struct Overlay {
    QRectF bounds;
    std::function<void(QPainter &)> draw;
};

// False for what lies nowhere (NaN) or so far outside that whole numbers cannot say where: such
// points never reach the painter. QRectF::intersects() is true of NaN.
bool reaches(const QRectF &bounds, const QRectF &picture)
{
    return bounds.left() < picture.right() && bounds.right() > picture.left()
           && bounds.top() < picture.bottom() && bounds.bottom() > picture.top();
}

// The one list of what a state shows, back to front, for drawing and for bounds alike.
std::vector<Overlay> overlays(const Snapshot &snap, const FrameState &state)
{
    const QRectF canvas = Backdrop::bounds(snap.canvasSize);
    const QPointF at = canvas.topLeft() + state.cursor;
    std::vector<Overlay> all;
    if (state.held)
        all.push_back({HoldRing::bounds(at), [=](QPainter &p) { HoldRing::draw(p, at); }});
    if (const auto progress = state.ripple)
        all.push_back(
            {Ripple::bounds(at, *progress), [=](QPainter &p) { Ripple::draw(p, at, *progress); }});
    all.push_back({CursorArrow::bounds(at, state.press),
                   [=, press = state.press](QPainter &p) { CursorArrow::draw(p, at, press); }});
    if (const auto &text = state.caption)
        all.push_back({Caption::bounds(canvas, *text),
                       [=](QPainter &p) { Caption::draw(p, canvas, *text); }});
    const QRectF picture(QPointF(0, 0), QSizeF(pixelSize(snap)));
    std::erase_if(all, [&](const Overlay &overlay) { return !reaches(overlay.bounds, picture); });
    return all;
}

bool fits(double side)
{
    return side >= 1 && side < maxSide + 1;
}

} // namespace

QSize pixelSize(const Snapshot &snap)
{
    const QSizeF canvas = snap.canvasSize;
    if (!fits(canvas.width()) || !fits(canvas.height()))
        return {0, 0};
    return {static_cast<int>(canvas.width()), static_cast<int>(canvas.height())};
}

QImage image(const Snapshot &snap, const FrameState &state)
{
    QImage picture(pixelSize(snap), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return {};
    QPainter painter(&picture);
    drawBackdrop(painter, snap);
    drawOverlays(painter, snap, state);
    return picture;
}

void drawBackdrop(QPainter &painter, const Snapshot &snap)
{
    Backdrop::draw(painter, snap);
}

void drawOverlays(QPainter &painter, const Snapshot &snap, const FrameState &state)
{
    for (const Overlay &overlay : overlays(snap, state))
        overlay.draw(painter);
}

QRegion overlayBounds(const Snapshot &snap, const FrameState &state)
{
    const QRectF picture(QPointF(0, 0), QSizeF(pixelSize(snap)));
    QRegion region;
    for (const Overlay &overlay : overlays(snap, state))
        region += (overlay.bounds & picture).toAlignedRect();
    return region;
}

} // namespace velvane::FrameRenderer
