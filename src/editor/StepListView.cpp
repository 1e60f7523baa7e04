#include "editor/StepListView.h"

#include "editor/OverlayScrollBar.h"
#include "editor/StepRowDelegate.h"
#include "editor/TabularText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace velvane {

StepListView::StepListView(Project &project, StepListModel &model, Selection &selection,
                           QWidget *parent)
    : QListView(parent)
    , m_project(project)
    , m_model(model)
    , m_selection(selection)
    , m_drag(*this, model)
    , m_slide(*this)
{
    setAccessibleName(tr("Steps"));
    setItemDelegate(new StepRowDelegate(*this));
    setFrameShape(QFrame::NoFrame);
    setProperty("look", QStringLiteral("list"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // In the rows' inset, so that they keep their width.
    new OverlayScrollBar(*this);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true);
    setTabKeyNavigation(false);

    followRows();
    connect(&m_selection, &Selection::targetsChanged, this, &StepListView::showSelection);
    showSelection();
}

void StepListView::followRows()
{
    // The selection model forgets rows that go; it is connected after us, and shown again after it.
    const auto goes = [this] { m_following = true; };
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, goes);
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeInserted, this, goes);
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeMoved, this, goes);
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, goes);
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { m_slide.rowsWillGo(first, last); });
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this](const QModelIndex &, int first) { m_slide.rowsWillCome(first); });
    setModel(&m_model);
    const auto settled = [this] {
        m_following = false;
        showSelection();
    };
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, settled);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, settled);
    connect(&m_model, &QAbstractItemModel::rowsMoved, this, settled);
    connect(&m_model, &QAbstractItemModel::modelReset, this, settled);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, [this] { m_slide.settle(-1); });
    connect(&m_model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int, int last) { m_slide.settle(last); });
    connect(&m_model, &QAbstractItemModel::rowsMoved, &m_slide, &RowSlide::cancel);
    connect(&m_model, &QAbstractItemModel::modelReset, &m_slide, &RowSlide::cancel);
}

StepRowLayout StepListView::layoutOf(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const StepRow &row = m_model.row(index.row());
    const QString length = index.data(StepListModel::LengthTextRole).toString();
    return StepRowLayout::of(visualRect(index),
                             {.isSection = row.step.kind == StepKind::section,
                              .isFirst = index.row() == 0,
                              .isIndented = row.indented,
                              .isRevealed = isRevealed(index),
                              .durationWidth = int(std::ceil(TabularText::width(
                                  QFontMetricsF(StepRowDelegate::numberFont()), length)))});
}

bool StepListView::isRevealed(const QModelIndex &index) const
{
    if (m_drag.isActive())
        return false;
    return index == m_hoveredRow
           || (selectionModel()->isSelected(index) && m_selection.targets().size() == 1);
}

StepListView::Part StepListView::partAt(QPoint position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return Part::none;
    const StepRowLayout layout = layoutOf(index);
    if (layout.remove.contains(position))
        return Part::remove;
    if (layout.run.contains(position))
        return Part::run;
    return layout.chevron.contains(position) ? Part::chevron : Part::body;
}

bool StepListView::isPressed(const QModelIndex &index, Part part) const
{
    return m_pressedPart == part && index == m_pressedRow && index == m_hoveredRow
           && m_hoveredPart == part;
}

void StepListView::setRunMissing(const QString &reason)
{
    m_runMissing = reason;
    viewport()->update();
}

void StepListView::showSelection()
{
    if (m_following)
        return;
    const QScopedValueRollback guard(m_following, true);
    const auto id = m_project.selection();
    const int current = id ? m_model.rowOf(*id) : -1;
    selectionModel()->select(m_model.rowsOf(m_selection.targets()),
                             QItemSelectionModel::ClearAndSelect);
    if (current >= 0 && current != currentIndex().row()) {
        selectionModel()->setCurrentIndex(m_model.index(current), QItemSelectionModel::NoUpdate);
        scrollTo(m_model.index(current));
    }
    viewport()->update();
}

void StepListView::selectionChanged(const QItemSelection &selected,
                                    const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    // Joined rows change their corners with their neighbours.
    viewport()->update();
    if (m_following)
        return;
    QSet<QUuid> ids;
    for (const QModelIndex &index : selectionModel()->selectedIndexes())
        ids.insert(m_model.row(index.row()).step.id);
    std::optional<QUuid> current;
    if (currentIndex().isValid())
        current = m_model.row(currentIndex().row()).step.id;
    const QScopedValueRollback guard(m_following, true);
    m_selection.setSelectedIDs(ids, current);
}

void StepListView::hover(QPoint position)
{
    const bool dragging = m_drag.isActive();
    m_hoveredRow = dragging ? QModelIndex() : indexAt(position);
    m_hoveredPart = dragging ? Part::none : partAt(position);
    viewport()->update();
}

void StepListView::mousePressEvent(QMouseEvent *event)
{
    hover(event->pos());
    m_pressedRow = QPersistentModelIndex();
    m_pressedPart = Part::none;
    if (event->button() == Qt::LeftButton) {
        m_pressedRow = indexAt(event->pos());
        m_pressedPart = m_hoveredPart;
        m_pressedAt = event->pos();
    }
    const bool isButton = m_pressedPart == Part::run || m_pressedPart == Part::remove
                          || m_pressedPart == Part::chevron;
    if (!isButton)
        QListView::mousePressEvent(event);
    viewport()->update();
}

void StepListView::mouseMoveEvent(QMouseEvent *event)
{
    hover(event->pos());
    if (!(event->buttons() & Qt::LeftButton) || m_pressedPart != Part::body)
        return;
    const QPoint way = event->pos() - m_pressedAt;
    if (m_drag.isActive())
        m_drag.moveTo(event->pos());
    else if (way.manhattanLength() >= QApplication::startDragDistance())
        m_drag.begin(m_pressedRow, event->pos());
}

void StepListView::mouseReleaseEvent(QMouseEvent *event)
{
    hover(event->pos());
    if (m_drag.isActive()) {
        if (const auto move = m_drag.drop())
            Q_EMIT moveRequested(move->first, move->second);
    } else if (m_pressedPart != Part::none && m_hoveredRow == m_pressedRow
               && m_hoveredPart == m_pressedPart) {
        activate(m_pressedRow, m_pressedPart);
    }
    m_pressedPart = Part::none;
    QListView::mouseReleaseEvent(event);
    viewport()->update();
}

void StepListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && partAt(event->pos()) == Part::body
        && m_model.row(index.row()).step.kind == StepKind::section)
        Q_EMIT toggleRequested(m_model.row(index.row()).step.id);
    else
        mousePressEvent(event); // fast clicks on a button are clicks
}

void StepListView::activate(const QModelIndex &index, Part part)
{
    const QUuid id = m_model.row(index.row()).step.id;
    if (part == Part::run && m_runMissing.isEmpty())
        Q_EMIT runRequested(id);
    else if (part == Part::remove)
        Q_EMIT deleteRequested(id);
    else if (part == Part::chevron)
        Q_EMIT toggleRequested(id);
}

void StepListView::leaveEvent(QEvent *event)
{
    m_hoveredRow = QPersistentModelIndex();
    m_hoveredPart = Part::none;
    viewport()->update();
    QListView::leaveEvent(event);
}

void StepListView::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(viewport());
        if (m_slide.paint(painter))
            return;
    }
    QListView::paintEvent(event);
    QPainter painter(viewport());
    m_drag.paint(painter);
}

void StepListView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ActivationChange
        || event->type() == QEvent::PaletteChange)
        viewport()->update();
    QListView::changeEvent(event);
}

bool StepListView::foldByKey(const QKeyEvent &event)
{
    if (!currentIndex().isValid() || event.modifiers() & ~Qt::KeypadModifier)
        return false;
    const Step &step = m_model.row(currentIndex().row()).step;
    if (step.kind != StepKind::section)
        return false;
    const int key = event.key();
    const bool flips = key == Qt::Key_Return || key == Qt::Key_Enter
                       || (key == Qt::Key_Left && !step.collapsed)
                       || (key == Qt::Key_Right && step.collapsed);
    if (flips)
        Q_EMIT toggleRequested(step.id);
    return flips;
}

bool StepListView::moveByKey(const QKeyEvent &event)
{
    const bool isUp = event.key() == Qt::Key_Up;
    const bool isMove = isUp || event.key() == Qt::Key_Down;
    if (!isMove || (event.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier)
        return false;
    if (const QModelIndex row = currentIndex(); row.isValid())
        if (const auto before = m_model.rowPast(row.row(), isUp))
            Q_EMIT moveRequested(row.row(), *before);
    scrollTo(currentIndex());
    return true;
}

void StepListView::keyPressEvent(QKeyEvent *event)
{
    // Space and Home belong to the playback.
    const bool isPlaybackKey = event->key() == Qt::Key_Space || event->key() == Qt::Key_Home;
    if (event->key() == Qt::Key_Escape && m_drag.isActive())
        m_drag.cancel();
    else if (isPlaybackKey && event->modifiers() == Qt::NoModifier)
        event->ignore();
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        Q_EMIT deleteSelectedRequested();
    else if (event->matches(QKeySequence::SelectAll))
        m_selection.selectAll();
    else if (!foldByKey(*event) && !moveByKey(*event))
        QListView::keyPressEvent(event);
}

} // namespace velvane
