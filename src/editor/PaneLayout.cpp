#include "editor/PaneLayout.h"

#include "editor/Controls.h"
#include "editor/EditorToolBar.h"
#include "editor/InspectorPane.h"
#include "editor/PreviewCanvas.h"
#include "editor/StagePane.h"
#include "editor/StatusLineView.h"
#include "editor/StepListPane.h"
#include "editor/TransportBar.h"
#include "editor/VideoScrubBar.h"

#include <QFrame>
#include <QSplitter>
#include <QVBoxLayout>

namespace velvane {

namespace {

QSplitter *splitter(QWidget *parent)
{
    auto *made = new QSplitter(Qt::Horizontal, parent);
    made->setHandleWidth(1);
    made->setChildrenCollapsible(false);
    return made;
}

QVBoxLayout *column(QWidget *parent)
{
    auto *made = new QVBoxLayout(parent);
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(0);
    return made;
}

void setWidths(QWidget &pane, int least, int most)
{
    pane.setMinimumWidth(least);
    pane.setMaximumWidth(most);
}

} // namespace

PaneLayout::PaneLayout(QWidget &whole, const Panes &panes)
    : QObject(&whole)
    , m_whole(whole)
    , m_panes(panes)
    , m_outer(splitter(&whole))
    , m_inner(splitter(&whole))
{
    layOut();
    connect(m_outer, &QSplitter::splitterMoved, this,
            [this] { m_userWidths.sidebar = m_outer->sizes().at(0); });
    connect(m_inner, &QSplitter::splitterMoved, this,
            [this] { m_userWidths.inspector = m_inner->sizes().at(1); });
}

void PaneLayout::layOut()
{
    m_inner->addWidget(makeStageColumn());
    m_inner->addWidget(m_panes.inspector);
    m_inner->setStretchFactor(0, 1);
    setWidths(*m_panes.inspector, Metrics::inspectorMinimum, Metrics::inspectorMaximum);

    m_outer->addWidget(m_panes.steps);
    m_outer->addWidget(makeRight());
    m_outer->setStretchFactor(1, 1);
    setWidths(*m_panes.steps, Metrics::sidebarMinimum, Metrics::sidebarMaximum);

    QVBoxLayout *all = column(&m_whole);
    all->addWidget(m_outer, 1);
    all->addWidget(m_panes.status);
}

QWidget *PaneLayout::makeStageColumn()
{
    auto *made = new QWidget(&m_whole);
    QVBoxLayout *all = column(made);
    all->addWidget(m_panes.stage, 1);
    all->addWidget(m_panes.scrubBar);
    all->addWidget(m_panes.transport);
    return made;
}

QWidget *PaneLayout::makeRight()
{
    auto *made = new QWidget(&m_whole);
    QVBoxLayout *all = column(made);
    all->addWidget(m_panes.toolBar);
    all->addWidget(Controls::hairline(made));
    all->addWidget(m_inner, 1);
    return made;
}

Condensing PaneLayout::room() const
{
    return Condensing::of(m_whole.width(), m_whole.height());
}

void PaneLayout::fit()
{
    const Condensing room = this->room();
    if (room == m_condensing)
        return;
    m_condensing = room;
    m_panes.toolBar->setIconOnly(room.iconBackdrops, room.iconRunOptions);
    m_panes.steps->setAddMenu(room.addMenu);
    m_panes.steps->setPadding(room.padding);
    m_panes.inspector->setPadding(room.padding);
    m_panes.inspector->setLabelColumn(room.labelColumn);
    m_panes.stage->canvas().setMargin(room.stageMargin);
    sizePanes();
}

void PaneLayout::sizePanes()
{
    const Condensing room = this->room();
    const int whole = m_whole.width();
    const int sidebar = m_userWidths.sidebar > 0 ? m_userWidths.sidebar : room.sidebarWidth;
    const int inspector = m_userWidths.inspector > 0 ? m_userWidths.inspector : room.inspectorWidth;
    m_outer->setSizes({sidebar, whole - sidebar});
    m_inner->setSizes({whole - sidebar - inspector, inspector});
}

void PaneLayout::restore(PaneWidths widths)
{
    m_userWidths = widths;
    sizePanes();
}

} // namespace velvane
