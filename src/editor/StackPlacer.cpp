#include "editor/StackPlacer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velvane {

namespace {

constexpr double betweenCapsules = 2;
constexpr double besideMarker = 6;
constexpr double step = 10;
constexpr double cell = 64;
// Worse than any overlap.
constexpr double outOfView = 1e9;

double heightOf(const StackPlacer::Stack &stack)
{
    const auto count = static_cast<double>(stack.widths.size());
    return count * (StackPlacer::capsuleHeight + betweenCapsules) - betweenCapsules;
}

std::vector<QRectF> capsulesAt(const StackPlacer::Stack &stack, bool onTheLeft, double down)
{
    const double away = stack.markerRadius + besideMarker;
    double top = stack.marker.y() - StackPlacer::capsuleHeight / 2 + down;
    std::vector<QRectF> capsules;
    capsules.reserve(stack.widths.size());
    for (const double width : stack.widths) {
        const double left = stack.marker.x() + (onTheLeft ? -away - width : away);
        capsules.emplace_back(left, top, width, StackPlacer::capsuleHeight);
        top += StackPlacer::capsuleHeight + betweenCapsules;
    }
    return capsules;
}

double commonArea(const QRectF &a, const QRectF &b, const QRectF &c)
{
    const double width =
        std::min({a.right(), b.right(), c.right()}) - std::max({a.left(), b.left(), c.left()});
    const double height =
        std::min({a.bottom(), b.bottom(), c.bottom()}) - std::max({a.top(), b.top(), c.top()});
    return width > 0 && height > 0 ? width * height : 0;
}

// How far a stack may stand from where it likes to, nearest first.
std::vector<double> offsets(const StackPlacer::Stack &stack)
{
    const double reach = stack.markerRadius + StackPlacer::capsuleHeight / 2;
    const double up = reach + heightOf(stack) - StackPlacer::capsuleHeight;
    std::vector<double> all{0};
    for (double away = step; away <= up; away += step) {
        if (away <= reach)
            all.push_back(away);
        all.push_back(-away);
    }
    return all;
}

} // namespace

StackPlacer::StackPlacer(const QRectF &view)
    : m_view(view)
    , m_columns(std::max(1, static_cast<int>(std::ceil(view.width() / cell))))
    , m_rows(std::max(1, static_cast<int>(std::ceil(view.height() / cell))))
    , m_blocked(static_cast<std::size_t>(m_columns) * m_rows)
{}

template <class Visit>
void StackPlacer::visitCells(const QRectF &rect, Visit visit) const
{
    const auto at = [](double distance, int count) {
        return std::clamp(static_cast<int>(std::floor(distance / cell)), 0, count - 1);
    };
    const int right = at(rect.right() - m_view.left(), m_columns);
    const int bottom = at(rect.bottom() - m_view.top(), m_rows);
    for (int row = at(rect.top() - m_view.top(), m_rows); row <= bottom; ++row)
        for (int column = at(rect.left() - m_view.left(), m_columns); column <= right; ++column)
            visit(static_cast<std::size_t>(row) * m_columns + column,
                  QRectF(m_view.left() + column * cell, m_view.top() + row * cell, cell, cell));
}

void StackPlacer::block(const QRectF &rect)
{
    visitCells(rect, [&](std::size_t index, const QRectF &) { m_blocked[index].push_back(rect); });
}

std::vector<QRectF> StackPlacer::place(const Stack &stack)
{
    std::vector<QRectF> best;
    double least = std::numeric_limits<double>::infinity();
    for (const double down : offsets(stack))
        for (const bool onTheLeft : {false, true}) {
            std::vector<QRectF> capsules = capsulesAt(stack, onTheLeft, down);
            const double hides = cost(capsules, least);
            if (hides == 0)
                return take(std::move(capsules));
            if (hides < least) {
                least = hides;
                best = std::move(capsules);
            }
        }
    return take(std::move(best));
}

bool StackPlacer::hasRoom(QPointF marker, double markerRadius, double width) const
{
    const Stack least{marker, markerRadius, {width}};
    return cost(capsulesAt(least, false, 0), 0) == 0 || cost(capsulesAt(least, true, 0), 0) == 0;
}

std::vector<QRectF> StackPlacer::placeIfFree(const Stack &stack)
{
    for (const bool onTheLeft : {false, true}) {
        std::vector<QRectF> capsules = capsulesAt(stack, onTheLeft, 0);
        if (cost(capsules, 0) == 0)
            return take(std::move(capsules));
    }
    return {};
}

std::vector<QRectF> StackPlacer::take(std::vector<QRectF> capsules)
{
    for (const QRectF &capsule : capsules)
        block(capsule);
    return capsules;
}

// Nothing for a free place; else how much it would hide, or more than `most`.
double StackPlacer::cost(const std::vector<QRectF> &capsules, double most) const
{
    double sum = 0;
    for (const QRectF &capsule : capsules) {
        if (!m_view.contains(capsule))
            sum += outOfView;
        if (sum <= most)
            sum += hidden(capsule);
        if (sum > most)
            break;
    }
    return sum;
}

double StackPlacer::hidden(const QRectF &capsule) const
{
    double area = 0;
    visitCells(capsule, [&](std::size_t index, const QRectF &bounds) {
        for (const QRectF &blocked : m_blocked[index])
            area += commonArea(blocked, capsule, bounds);
    });
    return area;
}

} // namespace velvane
