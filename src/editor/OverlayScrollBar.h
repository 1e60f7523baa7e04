#pragma once

#include <QScrollBar>

class QAbstractScrollArea;

namespace velvane {

/// A narrow scroll bar in the margin of a scroll area, which keeps its whole width for itself.
/// Shown only while there is something to scroll.
class OverlayScrollBar : public QScrollBar {
    Q_OBJECT
public:
    /// Belongs to the area, whose own bar it replaces.
    explicit OverlayScrollBar(QAbstractScrollArea &area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();
    void place();

    QAbstractScrollArea &m_area;
};

} // namespace velvane
