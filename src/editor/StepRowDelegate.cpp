#include "editor/StepRowDelegate.h"

#include "base/PlainLine.h"
#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/StepListView.h"
#include "editor/TabularText.h"
#include "editor/Theme.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace velvane {

namespace {

constexpr double ringWidth = 1.5;
constexpr double draggedOpacity = 0.4;

/// A rectangle whose upper and lower corners are rounded or not.
QPainterPath rounded(const QRectF &rect, bool upper, bool lower, double radius)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(rect, radius, radius);
    if (!upper)
        path.addRect(QRectF(rect.topLeft(), QSizeF(rect.width(), radius)));
    if (!lower)
        path.addRect(QRectF(rect.left(), rect.bottom() - radius, rect.width(), radius));
    return path.simplified();
}

bool isSelected(const StepListView &view, int row)
{
    return row >= 0 && row < view.rows().rowCount()
           && view.selectionModel()->isSelected(view.rows().index(row));
}

} // namespace

StepRowDelegate::StepRowDelegate(StepListView &view) : QStyledItemDelegate(&view), m_view(view) {}

QFont StepRowDelegate::numberFont()
{
    return Theme::font(TextSize::secondary);
}

QSize StepRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const bool isSection = m_view.rows().row(index.row()).step.kind == StepKind::section;
    return {Metrics::sidebarMinimum / 2, StepRowLayout::height(isSection, index.row() == 0)};
}

void StepRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &,
                            const QModelIndex &index) const
{
    const StepRowLayout layout = m_view.layoutOf(index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (!layout.hairline.isEmpty())
        painter->fillRect(layout.hairline, Theme::instance().colors().hairline);
    if (m_view.isDragged(index))
        painter->setOpacity(draggedOpacity);
    paintFill(*painter, index, layout);
    paintIcon(*painter, m_view.rows().row(index.row()), layout);
    paintTexts(*painter, index, layout);
    paintButtons(*painter, index, layout);
    painter->restore();
}

void StepRowDelegate::paintFill(QPainter &painter, const QModelIndex &index,
                                const StepRowLayout &layout) const
{
    const ThemeColors &colors = Theme::instance().colors();
    const int row = index.row();
    const bool selected = isSelected(m_view, row);
    const bool joinsAbove = selected && isSelected(m_view, row - 1) && layout.hairline.isEmpty();
    const bool joinsBelow = selected && isSelected(m_view, row + 1)
                            && m_view.rows().row(row + 1).step.kind != StepKind::section;
    if (selected)
        painter.fillPath(rounded(layout.fill, !joinsAbove, !joinsBelow, Metrics::radius),
                         m_view.isActiveWindow() ? colors.selection : colors.inactiveSelection);
    else if (index == m_view.hoveredRow())
        painter.fillPath(rounded(layout.fill, true, true, Metrics::radius), colors.rowHover);
    if (m_view.hasFocus() && index == m_view.currentIndex()) {
        const double half = ringWidth / 2;
        painter.strokePath(rounded(QRectF(layout.fill).adjusted(half, half, -half, -half),
                                   !joinsAbove, !joinsBelow, Metrics::radius - half),
                           QPen(colors.accent, ringWidth));
    }
}

void StepRowDelegate::paintIcon(QPainter &painter, const StepRow &row,
                                const StepRowLayout &layout) const
{
    const ThemeColors &colors = Theme::instance().colors();
    if (row.step.kind == StepKind::section) {
        const QString symbol =
            row.step.collapsed ? QStringLiteral("chevron.right") : QStringLiteral("chevron.down");
        Icons::draw(painter, symbol, colors.secondary, layout.chevron, Metrics::tileIcon);
        return;
    }
    const StepColors step = colors.step(row.step.kind);
    painter.fillPath(rounded(layout.tile, true, true, Metrics::radius), step.tile);
    Icons::draw(painter, symbol(row.step.kind), step.glyph, layout.tile, Metrics::tileIcon);
}

void StepRowDelegate::paintTexts(QPainter &painter, const QModelIndex &index,
                                 const StepRowLayout &layout) const
{
    const ThemeColors &colors = Theme::instance().colors();
    const StepRow &row = m_view.rows().row(index.row());
    const bool isSection = row.step.kind == StepKind::section;
    painter.setFont(numberFont());
    if (row.number) {
        painter.setPen(isSelected(m_view, index.row()) ? colors.text : colors.tertiary);
        TabularText::draw(painter, layout.number, Qt::AlignRight, QString::number(*row.number));
    }
    if (!layout.duration.isEmpty()) {
        painter.setPen(isSelected(m_view, index.row()) ? colors.text : colors.secondary);
        TabularText::draw(painter, layout.duration, Qt::AlignRight,
                          index.data(StepListModel::LengthTextRole).toString());
    }
    painter.setFont(Theme::font(TextSize::body, isSection ? QFont::DemiBold : QFont::Normal));
    painter.setPen(colors.text);
    // Line breaks of typed text stay visible as such, in one line.
    const QString line = withVisibleBreaks(row.step.summary());
    const QString text =
        painter.fontMetrics().elidedText(line, Qt::ElideRight, layout.summary.width());
    painter.drawText(layout.summary, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
}

void StepRowDelegate::paintButtons(QPainter &painter, const QModelIndex &index,
                                   const StepRowLayout &layout) const
{
    if (layout.run.isEmpty())
        return;
    using Part = StepListView::Part;
    const ThemeColors &colors = Theme::instance().colors();
    const bool hovered = index == m_view.hoveredRow();
    const auto button = [&](const QRect &rect, Part part, const QString &symbol, QColor color) {
        if (m_view.isPressed(index, part))
            painter.fillPath(rounded(rect, true, true, Metrics::segmentRadius),
                             colors.buttonPressed);
        else if (hovered && m_view.hoveredPart() == part && color != colors.disabled)
            painter.fillPath(rounded(rect, true, true, Metrics::segmentRadius), colors.buttonHover);
        Icons::draw(painter, symbol, color, rect, Metrics::tileIcon);
    };
    const bool canRun = m_view.runMissing().isEmpty();
    button(layout.run, Part::run, QStringLiteral("play.circle"),
           canRun ? colors.text : colors.disabled);
    const bool destroys = hovered && m_view.hoveredPart() == Part::remove;
    button(layout.remove, Part::remove, QStringLiteral("trash"),
           destroys ? colors.destructive : colors.text);
}

QString StepRowDelegate::helpAt(QPoint position) const
{
    const QModelIndex index = m_view.indexAt(position);
    if (!index.isValid())
        return {};
    const StepRow &row = m_view.rows().row(index.row());
    switch (m_view.partAt(position)) {
    case StepListView::Part::chevron:
        return row.step.collapsed ? tr("Expand section") : tr("Collapse section");
    case StepListView::Part::run:
        return m_view.runMissing().isEmpty()
                   ? tr("Run Live from Here")
                   : tr("Run Live from Here") + QStringLiteral(" — ") + m_view.runMissing();
    case StepListView::Part::remove:
        return tr("Delete");
    case StepListView::Part::body:
        break;
    case StepListView::Part::none:
        return {};
    }
    // A summary that does not fit is shown whole.
    const QFontMetrics metrics(Theme::font(
        TextSize::body, row.step.kind == StepKind::section ? QFont::DemiBold : QFont::Normal));
    const int room = m_view.layoutOf(index).summary.width();
    const QString summary = row.step.summary();
    return metrics.horizontalAdvance(summary) > room ? summary : QString();
}

bool StepRowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *,
                                const QStyleOptionViewItem &, const QModelIndex &)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    const QString help = helpAt(event->pos());
    if (help.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), help, &m_view);
    return true;
}

} // namespace velvane
