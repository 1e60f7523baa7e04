#include "editor/CanvasCells.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

// Smooth edges, and moves to whole device pixels, reach further than what is drawn.
constexpr double slack = 2;

int cellsAcross(double length)
{
    return std::max(0, static_cast<int>(std::ceil(length / CanvasCells::side)));
}

} // namespace

CanvasCells::CanvasCells(QSizeF view)
    : m_columns(cellsAcross(view.width()))
    , m_rows(cellsAcross(view.height()))
    , m_cells(static_cast<std::size_t>(m_columns) * m_rows)
{}

int CanvasCells::columnAt(double x) const
{
    return static_cast<int>(std::floor(std::clamp(x, -1.0, double(m_columns) * side) / side));
}

int CanvasCells::rowAt(double y) const
{
    return static_cast<int>(std::floor(std::clamp(y, -1.0, double(m_rows) * side) / side));
}

void CanvasCells::touch(int column, int row, int item, std::size_t look)
{
    Cell &cell = m_cells[static_cast<std::size_t>(row) * m_columns + column];
    cell.items.push_back(item);
    cell.look = qHashMulti(cell.look, look);
}

void CanvasCells::add(int item, const QRectF &bounds, std::size_t look)
{
    const QRectF area = bounds.adjusted(-slack, -slack, slack, slack);
    const int right = std::min(columnAt(area.right()), m_columns - 1);
    const int bottom = std::min(rowAt(area.bottom()), m_rows - 1);
    for (int row = std::max(rowAt(area.top()), 0); row <= bottom; ++row)
        for (int column = std::max(columnAt(area.left()), 0); column <= right; ++column)
            touch(column, row, item, look);
}

void CanvasCells::add(int item, const QLineF &line, double reach, std::size_t look)
{
    const double around = reach + slack;
    const bool falls = line.p1().x() <= line.p2().x();
    const QPointF left = falls ? line.p1() : line.p2();
    const QPointF right = falls ? line.p2() : line.p1();
    const double width = right.x() - left.x();
    const double slope = width > 0 ? (right.y() - left.y()) / width : 0;
    const auto yAt = [&](double x) {
        return left.y() + (std::clamp(x, left.x(), right.x()) - left.x()) * slope;
    };
    const int last = std::min(columnAt(right.x() + around), m_columns - 1);
    for (int column = std::max(columnAt(left.x() - around), 0); column <= last; ++column) {
        // What is drawn in this column belongs to points of the line that are at most `around`
        // away.
        const double from = yAt(column * side - around);
        const double to = width > 0 ? yAt((column + 1) * side + around) : right.y();
        const int bottom = std::min(rowAt(std::max(from, to) + around), m_rows - 1);
        for (int row = std::max(rowAt(std::min(from, to) - around), 0); row <= bottom; ++row)
            touch(column, row, item, look);
    }
}

QRect CanvasCells::bounds() const
{
    QRect all;
    for (int cell = 0; cell < count(); ++cell)
        if (!m_cells[cell].items.empty())
            all |= rect(cell);
    return all;
}

std::vector<int> CanvasCells::changedSince(const CanvasCells &before) const
{
    const bool comparable = before.m_columns == m_columns && before.m_rows == m_rows;
    std::vector<int> changed;
    for (int cell = 0; cell < count(); ++cell) {
        const Cell &now = m_cells[cell];
        const bool differs = comparable
                                 ? now.look != before.m_cells[cell].look
                                       || now.items.size() != before.m_cells[cell].items.size()
                                 : !now.items.empty();
        if (differs)
            changed.push_back(cell);
    }
    return changed;
}

QRegion CanvasCells::region(const std::vector<int> &cells) const
{
    // Stretches of neighbours: a region takes time in the square of its rectangles.
    QRegion region;
    QRect stretch;
    for (const int cell : cells) {
        const QRect next = rect(cell);
        if (stretch.top() == next.top() && stretch.right() + 1 == next.left()) {
            stretch.setRight(next.right());
            continue;
        }
        region += stretch;
        stretch = next;
    }
    return region + stretch;
}

} // namespace velvane
