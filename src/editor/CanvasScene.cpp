#include "editor/CanvasScene.h"

#include "editor/CanvasFrame.h"
#include "editor/CanvasPainter.h"
#include "editor/DevicePixels.h"
#include "editor/Theme.h"

namespace velvane {

namespace {

constexpr double fadedOpacity = 0.4;
constexpr double ringWidth = 2;
// The canvas lies on whole device pixels, which its place in the view is rounded to.
constexpr double pictureEdge = 2;

} // namespace

void CanvasScene::setPlace(const QRectF &canvas, QSizeF canvasSize, QSize size)
{
    const QRectF view(QPointF(0, 0), QSizeF(size));
    if (canvas == m_canvas && canvasSize == m_canvasSize && view == m_view)
        return;
    m_canvas = canvas;
    m_canvasSize = canvasSize;
    if (view != std::exchange(m_view, view))
        setCells();
    changeAll();
}

void CanvasScene::setPicture(const QImage &picture)
{
    if (m_backdrop.setPicture(picture))
        m_changes += m_canvas.toAlignedRect() & m_view.toAlignedRect();
}

void CanvasScene::updatePicture(const QImage &picture, const QRegion &changed)
{
    m_backdrop.updatePicture(picture, changed);
    const double across = m_canvas.width() / picture.width();
    const double down = m_canvas.height() / picture.height();
    for (const QRect &rect : changed) {
        const QRectF place(m_canvas.x() + rect.x() * across, m_canvas.y() + rect.y() * down,
                           rect.width() * across, rect.height() * down);
        // Pixels at its edges mix it with what lies beside it.
        const double edge = pictureEdge + std::max({1.0, across, down});
        m_changes +=
            place.adjusted(-edge, -edge, edge, edge).toAlignedRect() & m_view.toAlignedRect();
    }
}

void CanvasScene::setMarks(const CanvasMarks &marks)
{
    m_marks = marks;
    setCells();
}

void CanvasScene::setCells()
{
    m_changes += m_path.setCells(CanvasPainter::pathCells(m_marks, m_view.size()));
    m_changes += m_marksLayer.setCells(CanvasPainter::markCells(m_marks, m_view.size()));
}

void CanvasScene::setFrame(const std::optional<FrameState> &frame)
{
    if (frame == m_frame)
        return;
    m_changes += frameBounds();
    m_frame = frame;
    m_changes += frameBounds();
}

void CanvasScene::setFaded(bool faded)
{
    if (faded != std::exchange(m_faded, faded))
        changeAll();
}

void CanvasScene::forgetPictures()
{
    m_path.forget();
    m_marksLayer.forget();
    m_pictures.clear();
    changeAll();
}

QRegion CanvasScene::frameBounds() const
{
    if (!m_frame)
        return {};
    return CanvasFrame::bounds(m_canvas, m_canvasSize, *m_frame) & m_view.toAlignedRect();
}

void CanvasScene::paint(QPainter &painter, const QRegion &region)
{
    painter.save();
    painter.setClipRegion(region, Qt::IntersectClip);
    {
        const DevicePixels device(painter);
        const QRect canvas = device.aligned(m_canvas);
        const QRect view = device.touched(m_view);
        QRegion touched;
        for (const QRect &rect : region)
            touched += device.touched(rect);
        if (!(touched - canvas).isEmpty())
            m_surround.draw(painter, canvas, view, device.scale());
        m_backdrop.draw(painter, canvas, view, touched);
    }
    paintPath(painter);
    if (m_frame) {
        const DevicePixels device(painter);
        CanvasFrame::draw(painter, device.aligned(m_canvas), m_canvasSize, *m_frame);
    }
    paintMarks(painter);
    painter.restore();
}

void CanvasScene::paintRing(QPainter &painter) const
{
    const DevicePixels device(painter);
    const int width = qRound(ringWidth * device.scale());
    const QRect outer =
        device.aligned(m_canvas).adjusted(-width, -width, width, width) & device.touched(m_view);
    const QRegion ring = QRegion(outer) - outer.adjusted(width, width, -width, -width);
    for (const QRect &edge : ring)
        painter.fillRect(edge, Theme::instance().colors().accent);
}

void CanvasScene::paintPath(QPainter &painter)
{
    m_path.paint(painter, m_view, m_faded ? fadedOpacity : 1,
                 [this](QPainter &to, const QTransform &toPicture, const std::vector<int> &items) {
                     CanvasPainter::drawPath(to, toPicture, m_marks, items);
                 });
}

// Faded as one picture: where marks overlap, the lower one must not shine through.
void CanvasScene::paintMarks(QPainter &painter)
{
    m_marksLayer.paint(
        painter, m_view, m_faded ? fadedOpacity : 1,
        [this](QPainter &to, const QTransform &toPicture, const std::vector<int> &items) {
            CanvasPainter::drawMarks(to, toPicture, m_marks, m_pictures, items);
        });
}

} // namespace velvane
