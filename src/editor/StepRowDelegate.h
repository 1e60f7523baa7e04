#pragma once

#include "model/Step.h"

#include <QStyledItemDelegate>

namespace velvane {

class StepListView;
struct StepRow;
struct StepRowLayout;

/// Paints the rows of a StepListView, and explains their parts in tooltips.
class StepRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The delegate belongs to the view.
    explicit StepRowDelegate(StepListView &view);

    /// The font of row numbers and durations.
    static QFont numberFont();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// What the tooltip at that place of the view says; empty where there is none.
    QString helpAt(QPoint position) const;

private:
    void paintFill(QPainter &painter, const QModelIndex &index, const StepRowLayout &layout) const;
    void paintIcon(QPainter &painter, const StepRow &row, const StepRowLayout &layout) const;
    void paintTexts(QPainter &painter, const QModelIndex &index, const StepRowLayout &layout) const;
    void paintButtons(QPainter &painter, const QModelIndex &index,
                      const StepRowLayout &layout) const;

    StepListView &m_view;
};

} // namespace velvane
