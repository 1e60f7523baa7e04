#pragma once

#include "editor/CanvasCells.h"

#include <QImage>
#include <QTransform>

#include <functional>

class QPainter;

namespace velvane {

/// A transparent picture over the stage, of which only the cells are drawn that have changed.
///
/// Each cell is drawn by itself, the first time as later, so it never matters in how many steps a
/// picture came to be.
class CanvasLayer {
public:
    /// Draws these items; the painter is in the picture's device pixels and clipped to a cell.
    using Draw = std::function<void(QPainter &to, const QTransform &toPicture,
                                    const std::vector<int> &items)>;

    /// Shows these items from now on. Returns what of the view will look otherwise.
    QRegion setCells(CanvasCells cells);
    /// Draws all anew at the next paint.
    void forget() { m_image = {}; }
    /// Paints the picture where the painter's clip lets it. `view` is what the cells cover.
    void paint(QPainter &painter, const QRectF &view, double opacity, const Draw &draw);

private:
    void drawCells(const Draw &draw);
    QRect pictureRect(int cell) const;

    CanvasCells m_cells;
    /// What the picture does not show yet.
    std::vector<int> m_stale;
    QImage m_image;
    /// From the view to the picture, and where the picture lies in the device.
    QTransform m_toPicture;
    QPoint m_at;
};

} // namespace velvane
