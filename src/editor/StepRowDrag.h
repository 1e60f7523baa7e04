#pragma once

#include "editor/StepListModel.h"

#include <QPersistentModelIndex>
#include <QTimer>

class QListView;
class QPainter;

namespace velvane {

/// A row of the step list under the pointer's button: where it would go, and the list scrolling
/// towards it. Positions are in the viewport's pixels.
class StepRowDrag : public QObject {
    Q_OBJECT
public:
    StepRowDrag(QListView &view, const StepListModel &model);

    bool isActive() const { return m_active; }
    /// Does the row go along: the dragged one, or a step of the dragged section?
    bool takes(int row) const;

    void begin(const QModelIndex &row, QPoint position);
    void moveTo(QPoint position);
    /// Ends the drag. Returns from which row to before which it goes; nothing when the row has
    /// gone.
    std::optional<std::pair<int, int>> drop();
    void cancel();

    /// Draws the line at which the row would go.
    void paint(QPainter &painter) const;

private:
    int insertionRow() const;
    int lastTaken() const;
    void scroll();

    QListView &m_view;
    const StepListModel &m_model;
    QPersistentModelIndex m_row;
    QPoint m_position;
    QTimer m_scroll;
    bool m_active = false;
};

} // namespace velvane
