#include "editor/CanvasLayer.h"

#include "editor/DevicePixels.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velvane {

QRegion CanvasLayer::setCells(CanvasCells cells)
{
    const std::vector<int> changed = cells.changedSince(m_cells);
    const bool resized = cells.count() != m_cells.count() || cells.columns() != m_cells.columns();
    const QRegion region = cells.region(changed) + (resized ? m_cells.bounds() : QRect());
    m_cells = std::move(cells);
    if (resized) {
        m_stale.clear();
        forget();
        return region;
    }
    std::vector<int> stale;
    std::set_union(m_stale.begin(), m_stale.end(), changed.begin(), changed.end(),
                   std::back_inserter(stale));
    m_stale = std::move(stale);
    return region;
}

void CanvasLayer::paint(QPainter &painter, const QRectF &view, double opacity, const Draw &draw)
{
    const QRect filled = m_cells.bounds();
    if (filled.isEmpty())
        return;
    const QTransform toDevice = painter.deviceTransform();
    const DevicePixels device(painter);
    const QRect area = device.touched(view);
    const QTransform toPicture = toDevice * QTransform::fromTranslate(-area.x(), -area.y());
    if (m_image.size() != area.size() || m_toPicture != toPicture) {
        m_image = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::transparent);
        m_toPicture = toPicture;
        m_stale.clear();
        for (int cell = 0; cell < m_cells.count(); ++cell)
            if (!m_cells.items(cell).empty())
                m_stale.push_back(cell);
    }
    m_at = area.topLeft();
    drawCells(draw);
    const QRect shown = device.touched(filled) & area;
    painter.setOpacity(opacity);
    painter.drawImage(shown.topLeft(), m_image, shown.translated(-m_at));
    painter.setOpacity(1);
}

// Disjoint at any scale: neighbours share an edge of whole pixels.
QRect CanvasLayer::pictureRect(int cell) const
{
    const QRectF rect = m_toPicture.mapRect(QRectF(m_cells.rect(cell)));
    const QPoint topLeft(qRound(rect.left()), qRound(rect.top()));
    return {topLeft,
            QSize(qRound(rect.right()) - topLeft.x(), qRound(rect.bottom()) - topLeft.y())};
}

void CanvasLayer::drawCells(const Draw &draw)
{
    if (m_stale.empty())
        return;
    QPainter to(&m_image);
    to.setRenderHint(QPainter::Antialiasing);
    for (const int cell : std::exchange(m_stale, {})) {
        const QRect rect = pictureRect(cell);
        to.resetTransform();
        to.setCompositionMode(QPainter::CompositionMode_Source);
        to.setClipRect(rect);
        to.fillRect(rect, Qt::transparent);
        to.setCompositionMode(QPainter::CompositionMode_SourceOver);
        draw(to, m_toPicture, m_cells.items(cell));
    }
}

} // namespace velvane
