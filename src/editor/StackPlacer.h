#pragma once

#include <QRectF>

#include <vector>

namespace velvane {

/// Finds places for stacks of capsules beside their markers, where they hide as little as can be.
/// In the view's logical pixels.
///
/// The best place is right of the marker, the first capsule centred on it; the next best the same
/// on the left. Where both leave the view or overlap a marker or an earlier stack, a stack moves
/// up or down as long as it touches its marker's height.
class StackPlacer {
public:
    struct Stack {
        QPointF marker;
        double markerRadius = 0;
        /// Of the capsules, from the top.
        std::vector<double> widths;
    };
    static constexpr double capsuleHeight = 18;

    explicit StackPlacer(const QRectF &view);

    /// Keeps later stacks from a marker or a chip.
    void block(const QRectF &rect);
    /// The capsules at the best place.
    std::vector<QRectF> place(const Stack &stack);
    /// False when not even one capsule of this width is free beside the marker.
    bool hasRoom(QPointF marker, double markerRadius, double width) const;
    /// The capsules beside the marker, on the right or else on the left, if nothing is hidden
    /// there.
    std::vector<QRectF> placeIfFree(const Stack &stack);

private:
    std::vector<QRectF> take(std::vector<QRectF> capsules);
    double cost(const std::vector<QRectF> &capsules, double most) const;
    double hidden(const QRectF &capsule) const;
    template <class Visit>
    void visitCells(const QRectF &rect, Visit visit) const;

    QRectF m_view;
    int m_columns;
    int m_rows;
    /// What is blocked, by cells of the view.
    std::vector<std::vector<QRectF>> m_blocked;
};

} // namespace velvane
