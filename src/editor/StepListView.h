#pragma once

#include "editor/RowSlide.h"
#include "editor/Selection.h"
#include "editor/StepListModel.h"
#include "editor/StepRowDrag.h"
#include "editor/StepRowLayout.h"

#include <QListView>

namespace velvane {

/// The rows of the step list: selection, the buttons and chevrons in them, and dragging them.
///
/// What it is asked to do it says by signals; only the selection it sets itself.
class StepListView : public QListView {
    Q_OBJECT
public:
    /// What of a row the pointer is on.
    enum class Part { none, body, chevron, run, remove };

    StepListView(Project &project, StepListModel &model, Selection &selection,
                 QWidget *parent = nullptr);

    StepRowLayout layoutOf(const QModelIndex &index) const;
    Part partAt(QPoint position) const;
    const StepListModel &rows() const { return m_model; }

    /// The row and part under the pointer, while no button is held.
    QModelIndex hoveredRow() const { return m_hoveredRow; }
    Part hoveredPart() const { return m_hoveredPart; }
    bool isPressed(const QModelIndex &index, Part part) const;
    /// Is the row part of what is dragged?
    bool isDragged(const QModelIndex &index) const { return m_drag.takes(index.row()); }

    /// Why the run buttons cannot be used; empty when they can.
    void setRunMissing(const QString &reason);
    const QString &runMissing() const { return m_runMissing; }

Q_SIGNALS:
    void runRequested(const QUuid &step);
    void deleteRequested(const QUuid &step);
    void toggleRequested(const QUuid &section);
    void deleteSelectedRequested();
    /// A row was dropped before another, or past the last one, or is moved so by keys.
    void moveRequested(int from, int to);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void followRows();
    void hover(QPoint position);
    void activate(const QModelIndex &index, Part part);
    bool foldByKey(const QKeyEvent &event);
    bool moveByKey(const QKeyEvent &event);
    bool isRevealed(const QModelIndex &index) const;
    void showSelection();

    Project &m_project;
    StepListModel &m_model;
    Selection &m_selection;
    StepRowDrag m_drag;
    RowSlide m_slide;
    QString m_runMissing;
    QPersistentModelIndex m_hoveredRow;
    Part m_hoveredPart = Part::none;
    QPersistentModelIndex m_pressedRow;
    Part m_pressedPart = Part::none;
    QPoint m_pressedAt;
    /// The view follows the model or the selection, and says nothing itself.
    bool m_following = false;
};

} // namespace velvane
