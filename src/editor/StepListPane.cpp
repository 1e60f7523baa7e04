#include "editor/StepListPane.h"

#include "editor/AddStepGrid.h"
#include "editor/Controls.h"
#include "editor/IconButton.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"
#include "model/StepList.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace velvane {

namespace {

constexpr int gridPadding = 6;
constexpr int listTop = 6;

} // namespace

StepListPane::StepListPane(Project &project, Selection &selection, StepClipboard &clipboard,
                           RecordActionsController &record, LiveRunController &live,
                           QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_clipboard(clipboard)
    , m_record(record)
    , m_live(live)
    , m_model(project)
{
    setAttribute(Qt::WA_StyledBackground);
    setProperty("look", QStringLiteral("list"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_header = makeHeader();
    column->addWidget(m_header);
    m_grid = new AddStepGrid(this);
    m_grid->setContentsMargins(gridPadding, 0, gridPadding, gridPadding);
    column->addWidget(m_grid);
    column->addWidget(Controls::hairline(this));
    column->addSpacing(listTop);
    m_view = new StepListView(m_project, m_model, m_selection, this);
    column->addWidget(m_view, 1);
    setAddMenu(false);

    connect(m_grid, &AddStepGrid::chosen, this,
            [this](StepKind kind) { StepList::addStep(m_project, kind); });
    connectView();
    connect(&m_record, &RecordActionsController::isRecordingChanged, this,
            &StepListPane::updateCapabilities);
    connect(&m_record, &RecordActionsController::missingChanged, this,
            &StepListPane::updateCapabilities);
    connect(&m_live, &LiveRunController::missingChanged, this, &StepListPane::updateCapabilities);
    updateCapabilities();
}

QWidget *StepListPane::makeHeader()
{
    auto *header = new QWidget(this);
    header->setFixedHeight(Metrics::toolbarHeight);
    auto *row = new QHBoxLayout(header);
    row->setSpacing(Metrics::gap);
    m_title = new QLabel(tr("Add a step"), header);
    m_title->setFont(Theme::font(TextSize::body, QFont::DemiBold));
    row->addWidget(m_title);
    m_addMenu = new IconButton(header);
    m_addMenu->setIcon(Icons::icon(QStringLiteral("plus.circle")));
    m_addMenu->setLabel(tr("Add a step"));
    m_addMenu->setToolTip(tr("Add a step"));
    auto *menu = new QMenu(m_addMenu);
    AddStepGrid::fill(*menu, [this](StepKind kind) { StepList::addStep(m_project, kind); });
    m_addMenu->setMenu(menu);
    row->addWidget(m_addMenu);
    row->addStretch();
    m_recordButton = Controls::button(QStringLiteral("record.circle"), tr("Record"), {},
                                      QStringLiteral("flat"), header);
    connect(m_recordButton, &QAbstractButton::clicked, this, [this] { m_record.recordActions(); });
    row->addWidget(m_recordButton);
    return header;
}

void StepListPane::connectView()
{
    connect(m_view, &StepListView::runRequested, this,
            [this](const QUuid &step) { m_live.runLive(step); });
    connect(m_view, &StepListView::deleteRequested, this,
            [this](const QUuid &step) { StepList::deleteStep(m_project, step); });
    connect(m_view, &StepListView::toggleRequested, this,
            [this](const QUuid &section) { StepList::toggleCollapse(m_project, section); });
    connect(m_view, &StepListView::deleteSelectedRequested, this,
            [this] { m_selection.deleteSelected(); });
    connect(m_view, &StepListView::moveRequested, this, [this](int from, int to) {
        StepList::moveVisible(m_project, {from}, to);
        m_view->setFocus();
    });
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &StepListPane::showContextMenu);
}

void StepListPane::showContextMenu(QPoint position)
{
    // On its own, not in a loop of its own: the window can go away while it is open.
    auto *menu = new QMenu(m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QModelIndex index = m_view->indexAt(position);
    if (index.isValid())
        addRowActions(*menu, m_model.row(index.row()).step);
    addListActions(*menu);
    menu->popup(m_view->viewport()->mapToGlobal(position));
}

void StepListPane::addRowActions(QMenu &menu, const Step &step)
{
    const QUuid id = step.id;
    QAction *run = menu.addAction(Icons::icon(QStringLiteral("play.circle")),
                                  tr("Run Live from Here"), [this, id] { m_live.runLive(id); });
    run->setEnabled(m_live.canRunLive());
    if (step.kind == StepKind::section)
        menu.addAction(step.collapsed ? tr("Expand section") : tr("Collapse section"),
                       [this, id] { StepList::toggleCollapse(m_project, id); });
    menu.addSeparator();
}

void StepListPane::addListActions(QMenu &menu)
{
    const auto add = [&menu](const QString &text, bool enabled, const QKeySequence &keys,
                             auto action) {
        QAction *added = menu.addAction(text, action);
        added->setEnabled(enabled);
        added->setShortcut(keys);
        added->setShortcutVisibleInContextMenu(true);
    };
    const bool any = m_clipboard.canCopy();
    add(tr("Cut"), any, QKeySequence::Cut, [this] { m_clipboard.cut(); });
    add(tr("Copy"), any, QKeySequence::Copy, [this] { m_clipboard.copy(); });
    add(tr("Paste"), m_clipboard.canPaste(), QKeySequence::Paste, [this] { m_clipboard.paste(); });
    add(tr("Duplicate"), any, Qt::CTRL | Qt::Key_D, [this] { m_clipboard.duplicate(); });
    add(tr("Select All"), !m_project.steps().isEmpty(), QKeySequence::SelectAll,
        [this] { m_selection.selectAll(); });
    menu.addSeparator();
    add(tr("Delete"), m_selection.canDelete(), QKeySequence::Delete,
        [this] { m_selection.deleteSelected(); });
}

void StepListPane::updateCapabilities()
{
    Controls::setUsable(*m_recordButton, tr("Record real actions and append them as steps"),
                        m_record.missing());
    m_view->setRunMissing(m_live.missing());
}

void StepListPane::setAddMenu(bool menu)
{
    m_title->setVisible(!menu);
    m_grid->setVisible(!menu);
    m_addMenu->setVisible(menu);
    m_recordButton->setIconOnly(false);
    const int labels = m_addMenu->sizeHint().width() + m_recordButton->sizeHint().width();
    const int needed = labels + 2 * gridPadding + Metrics::gap;
    m_recordButton->setIconOnly(menu && needed > Metrics::sidebarMinimum);
    setPadding(m_padding);
}

void StepListPane::setPadding(int padding)
{
    m_padding = padding;
    const bool menu = !m_addMenu->isHidden();
    // A flat button's own padding reaches beyond the page's.
    m_header->layout()->setContentsMargins(menu ? gridPadding : padding, 0, gridPadding, 0);
}

} // namespace velvane
