#include "render/FramePainter.h"

#include <QPainter>

#include <utility>

namespace velvane {

FramePainter::FramePainter(const Snapshot &snap)
    : m_snap(snap)
    , m_backdrop(FrameRenderer::pixelSize(snap), QImage::Format_ARGB32_Premultiplied)
{
    if (m_backdrop.isNull())
        return;
    QPainter painter(&m_backdrop);
    FrameRenderer::drawBackdrop(painter, snap);
    painter.end();
    m_frame = m_backdrop;
}

QRegion FramePainter::paint(const FrameState &state)
{
    if (m_frame.isNull() || m_shown == state)
        return {};
    const bool isFirst = !m_shown;
    const QRegion covers = FrameRenderer::overlayBounds(m_snap, state);
    QPainter painter(&m_frame);
    restoreBackdrop(painter);
    FrameRenderer::drawOverlays(painter, m_snap, state);
    m_shown = state;
    const QRegion covered = std::exchange(m_covered, covers);
    return isFirst ? QRegion(m_frame.rect()) : covered + covers;
}

void FramePainter::restoreBackdrop(QPainter &painter) const
{
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &rect : m_covered)
        painter.drawImage(rect.topLeft(), m_backdrop, rect);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace velvane
