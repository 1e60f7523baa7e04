#include "editor/CanvasBackdrop.h"

#include "render/layers/Backdrop.h"

#include <QPainter>

namespace velvane {

namespace {

// Transparency shows black.
QImage opaque(const QImage &picture)
{
    if (picture.isNull() || picture.format() == QImage::Format_RGB32)
        return picture;
    QImage flat(picture.size(), QImage::Format_RGB32);
    flat.fill(Qt::black);
    QPainter painter(&flat);
    painter.drawImage(flat.rect(), picture);
    return flat;
}

} // namespace

bool CanvasBackdrop::setPicture(const QImage &picture)
{
    if (picture.cacheKey() == m_key)
        return false;
    m_key = picture.cacheKey();
    m_picture = opaque(picture);
    m_scaled = {};
    m_scaler.reset();
    return true;
}

void CanvasBackdrop::updatePicture(const QImage &picture, const QRegion &changed)
{
    if (m_scaled.isNull() || picture.size() != m_picture.size()) {
        setPicture(picture);
        return;
    }
    m_key = picture.cacheKey();
    m_picture = opaque(picture);
    const QPoint origin = m_canvas.topLeft() - m_shown.topLeft();
    const QRegion missing = reach(changed).translated(origin) & m_scaled.rect();
    if (missing.isEmpty())
        return;
    QPainter painter(&m_scaled);
    painter.setClipRegion(missing);
    painter.translate(origin);
    drawMissing(painter, missing.translated(-origin));
}

// Of the whole canvas, what shows pixels of the picture.
QRegion CanvasBackdrop::reach(const QRegion &changed) const
{
    QRegion reached;
    for (const QRect &rect : changed) {
        if (m_scaler) {
            reached += m_scaler->reach(rect);
            continue;
        }
        // Enlarged, a pixel is mixed with its neighbours.
        const QRect mixed = rect.adjusted(-1, -1, 1, 1);
        const double across = double(m_canvas.width()) / m_picture.width();
        const double down = double(m_canvas.height()) / m_picture.height();
        reached += QRectF(mixed.x() * across, mixed.y() * down, mixed.width() * across,
                          mixed.height() * down)
                       .toAlignedRect();
    }
    return reached;
}

void CanvasBackdrop::draw(QPainter &painter, const QRect &canvas, const QRect &view,
                          const QRegion &region)
{
    const QRect shown = canvas & view;
    if (shown.isEmpty())
        return;
    if (m_scaled.isNull() || canvas != m_canvas || shown != m_shown)
        render(canvas, shown);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &rect : region &shown)
        painter.drawImage(rect.topLeft(), m_scaled, rect.translated(-shown.topLeft()));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// Where the canvas has only moved, what showed before is moved along: panning stays quick.
void CanvasBackdrop::render(const QRect &canvas, const QRect &shown)
{
    QImage image(shown.size(), QImage::Format_ARGB32_Premultiplied);
    QRegion missing(image.rect());
    QPainter painter(&image);
    const QPoint origin = canvas.topLeft() - shown.topLeft();
    if (!m_scaled.isNull() && canvas.size() == m_canvas.size()) {
        const QPoint moved = origin - (m_canvas.topLeft() - m_shown.topLeft());
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(moved, m_scaled);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        missing -= m_scaled.rect().translated(moved);
    }
    if (canvas.size() != m_canvas.size())
        m_scaler.reset();
    m_canvas = canvas;
    m_shown = shown;
    if (isShrunk() && !m_scaler)
        m_scaler.emplace(m_picture.size(), canvas.size());
    painter.setClipRegion(missing);
    painter.translate(origin);
    if (!missing.isEmpty())
        drawMissing(painter, missing.translated(-origin));
    painter.end();
    m_scaled = image;
}

bool CanvasBackdrop::isShrunk() const
{
    return !m_picture.isNull() && m_canvas.size() != m_picture.size()
           && m_canvas.width() <= m_picture.width() && m_canvas.height() <= m_picture.height();
}

// Only what is missing is made, which the painter's clip is: a magnified canvas may be many times
// as large as the screen.
void CanvasBackdrop::drawMissing(QPainter &painter, const QRegion &missing) const
{
    const QRect whole(QPoint(0, 0), m_canvas.size());
    if (m_picture.isNull()) {
        Snapshot canvas;
        canvas.canvasSize = m_canvas.size();
        return Backdrop::draw(painter, canvas);
    }
    // The painter samples single pixels when it shrinks a picture; the scaler averages them.
    if (m_scaler)
        return drawSmaller(painter, missing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(whole, m_picture);
}

void CanvasBackdrop::drawSmaller(QPainter &painter, const QRegion &missing) const
{
    for (const QRect &rect : missing) {
        QImage part(rect.size(), QImage::Format_RGB32);
        m_scaler->scale(m_picture, rect, part, rect.topLeft());
        painter.drawImage(rect.topLeft(), part);
    }
}

} // namespace velvane
