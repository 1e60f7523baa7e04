#pragma once

#include <QLineF>
#include <QRegion>

#include <vector>

namespace velvane {

/// Which items of a picture touch which cell of a grid over a view, in the view's logical pixels.
///
/// Items are added back to front. Each comes with a number that tells what it looks like and where:
/// two grids tell by these which cells show something else.
class CanvasCells {
public:
    /// Of a cell, in logical pixels.
    static constexpr int side = 32;

    explicit CanvasCells(QSizeF view = {});

    /// An item within a rectangle.
    void add(int item, const QRectF &bounds, std::size_t look);
    /// An item within `reach` of a line.
    void add(int item, const QLineF &line, double reach, std::size_t look);

    int columns() const { return m_columns; }
    int count() const { return static_cast<int>(m_cells.size()); }
    /// The items that may touch a cell, back to front.
    const std::vector<int> &items(int cell) const { return m_cells[cell].items; }
    QRect rect(int cell) const
    {
        return {cell % m_columns * side, cell / m_columns * side, side, side};
    }
    /// Around all cells that have items.
    QRect bounds() const;

    /// The cells, ascending, whose items are others or look otherwise than in the grid before; all
    /// that have items when that was of another size.
    std::vector<int> changedSince(const CanvasCells &before) const;
    /// The view's part that these cells, ascending, cover.
    QRegion region(const std::vector<int> &cells) const;

private:
    struct Cell {
        std::vector<int> items;
        std::size_t look = 0;
    };

    void touch(int column, int row, int item, std::size_t look);
    int columnAt(double x) const;
    int rowAt(double y) const;

    int m_columns = 0;
    int m_rows = 0;
    std::vector<Cell> m_cells;
};

} // namespace velvane
