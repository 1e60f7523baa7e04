#include "editor/StepRowDrag.h"

#include "editor/StepRowLayout.h"
#include "editor/Theme.h"

#include <QListView>
#include <QPainter>
#include <QScrollBar>

namespace velvane {

namespace {

constexpr int scrollInterval = 20; // milliseconds
// Within this of an edge the list scrolls, faster the nearer.
constexpr int scrollZone = 28;
constexpr int scrollDivisor = 3;
constexpr double lineWidth = 2;
constexpr double ringSize = 8;

} // namespace

StepRowDrag::StepRowDrag(QListView &view, const StepListModel &model)
    : QObject(&view)
    , m_view(view)
    , m_model(model)
{
    m_scroll.setInterval(scrollInterval);
    connect(&m_scroll, &QTimer::timeout, this, &StepRowDrag::scroll);
}

void StepRowDrag::begin(const QModelIndex &row, QPoint position)
{
    m_row = row;
    m_active = row.isValid();
    moveTo(position);
}

void StepRowDrag::moveTo(QPoint position)
{
    m_position = position;
    if (!m_active)
        return;
    const QRect inside = m_view.viewport()->rect().adjusted(0, scrollZone, 0, -scrollZone);
    if (position.y() < inside.top() || position.y() > inside.bottom())
        m_scroll.start();
    else
        m_scroll.stop();
    m_view.viewport()->update();
}

void StepRowDrag::scroll()
{
    const QRect inside = m_view.viewport()->rect().adjusted(0, scrollZone, 0, -scrollZone);
    const int beyond = m_position.y() < inside.top() ? m_position.y() - inside.top()
                                                     : m_position.y() - inside.bottom();
    QScrollBar *bar = m_view.verticalScrollBar();
    bar->setValue(bar->value() + beyond / scrollDivisor);
    m_view.viewport()->update();
}

int StepRowDrag::lastTaken() const
{
    int last = m_row.row();
    if (m_model.row(last).step.kind != StepKind::section)
        return last;
    while (last + 1 < m_model.rowCount() && m_model.row(last + 1).step.kind != StepKind::section)
        ++last;
    return last;
}

bool StepRowDrag::takes(int row) const
{
    return m_active && m_row.isValid() && row >= m_row.row() && row <= lastTaken();
}

int StepRowDrag::insertionRow() const
{
    const QModelIndex over = m_view.indexAt({m_view.viewport()->width() / 2, m_position.y()});
    if (!over.isValid())
        return m_position.y() < 0 ? 0 : m_model.rowCount();
    const bool lowerHalf = m_position.y() > m_view.visualRect(over).center().y();
    return over.row() + (lowerHalf ? 1 : 0);
}

std::optional<std::pair<int, int>> StepRowDrag::drop()
{
    const bool valid = m_active && m_row.isValid();
    const std::pair move(m_row.row(), valid ? insertionRow() : 0);
    cancel();
    return valid ? std::optional(move) : std::nullopt;
}

void StepRowDrag::cancel()
{
    m_active = false;
    m_scroll.stop();
    m_view.viewport()->update();
}

void StepRowDrag::paint(QPainter &painter) const
{
    if (!m_active || !m_row.isValid())
        return;
    const int row = insertionRow();
    const bool atEnd = row >= m_model.rowCount();
    const QRect beside = m_view.visualRect(m_model.index(atEnd ? m_model.rowCount() - 1 : row));
    const double y = std::max(atEnd ? beside.bottom() + 1.0 : double(beside.top()), ringSize / 2);
    const StepRowLayout layout = StepRowLayout::of(beside, {});
    const double left = layout.tile.left() + ringSize / 2;

    const ThemeColors &colors = Theme::instance().colors();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors.accent, lineWidth));
    painter.drawLine(QPointF(left + ringSize / 2, y), QPointF(layout.fill.right(), y));
    painter.setBrush(colors.base);
    painter.drawEllipse(QPointF(left, y), (ringSize - lineWidth) / 2, (ringSize - lineWidth) / 2);
}

} // namespace velvane
