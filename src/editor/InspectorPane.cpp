#include "editor/InspectorPane.h"

#include "editor/Controls.h"
#include "editor/DemoSettingsForm.h"
#include "editor/IconButton.h"
#include "editor/Metrics.h"
#include "editor/OverlayScrollBar.h"
#include "editor/SeveralStepsForm.h"
#include "editor/StepForm.h"
#include "editor/StepTile.h"
#include "editor/Theme.h"
#include "model/StepList.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStackedLayout>

namespace velvane {

namespace {

QScrollArea *scrolled(QWidget *page, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    page->setProperty("look", QStringLiteral("page"));
    area->setWidget(page);
    new OverlayScrollBar(*area);
    return area;
}

} // namespace

InspectorPane::InspectorPane(Project &project, Selection &selection, StepForm *step,
                             SeveralStepsForm *several, DemoSettingsForm *settings, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_form(step)
    , m_several(several)
    , m_settings(settings)
{
    setAttribute(Qt::WA_StyledBackground);
    setProperty("look", QStringLiteral("pane"));
    m_pages = new QStackedLayout(this);
    m_pages->addWidget(makeStepPage());
    m_pages->addWidget(makeSeveralPage());
    m_pages->addWidget(makeDemoPage());
    setPadding(Metrics::pagePadding);
    connect(m_form, &StepForm::appChosen, this, &InspectorPane::appChosen);
    connect(&m_project, &Project::stepsChanged, this, &InspectorPane::update);
    connect(&m_project, &Project::selectionChanged, this, &InspectorPane::update);
    connect(m_several, &SeveralStepsForm::countChanged, this, &InspectorPane::update);
    update();
}

QString InspectorPane::hint()
{
    return tr("Add a step above, or click the preview to drop a Move waypoint. Turn on Live for "
              "your real screen, then Freeze to pick targets against a still. Press Z to magnify.");
}

QWidget *InspectorPane::makePage(QWidget *header, QWidget *form, QWidget *footer)
{
    auto *page = new QWidget(this);
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header);
    auto *body = new QWidget(page);
    auto *bodyColumn = new QVBoxLayout(body);
    bodyColumn->setSpacing(0);
    bodyColumn->addSpacing(Metrics::gap);
    bodyColumn->addWidget(form);
    bodyColumn->addStretch();
    m_padded << body;
    column->addWidget(scrolled(body, page), 1);
    column->addWidget(Controls::hairline(page));
    column->addWidget(footer);
    return page;
}

QWidget *InspectorPane::makeStepPage()
{
    return makePage(makeHeader(), m_form, makeFooter(tr("Delete Step"), tr("Delete this step")));
}

QWidget *InspectorPane::makeSeveralPage()
{
    m_severalTitle = new QLabel(this);
    return makePage(makeTitle(m_severalTitle), m_several,
                    makeFooter(tr("Delete Steps"), tr("Delete the selected steps")));
}

QWidget *InspectorPane::makeTitle(QLabel *title)
{
    auto *header = new QWidget(this);
    header->setFixedHeight(Metrics::toolbarHeight);
    auto *row = new QHBoxLayout(header);
    title->setFont(Theme::font(TextSize::title, QFont::DemiBold));
    title->setWordWrap(true);
    row->addWidget(title);
    m_padded << header;
    return header;
}

QWidget *InspectorPane::makeHeader()
{
    auto *header = new QWidget(this);
    header->setFixedHeight(Metrics::toolbarHeight);
    auto *row = new QHBoxLayout(header);
    row->setSpacing(Metrics::gap);
    m_tile = new StepTile(header);
    m_title = new QLabel(header);
    m_title->setFont(Theme::font(TextSize::title, QFont::DemiBold));
    m_title->setWordWrap(true);
    m_number = new QLabel(header);
    m_number->setProperty("look", QStringLiteral("hint"));
    m_number->setFont(Theme::font(TextSize::secondary));
    row->addWidget(m_tile);
    row->addWidget(m_title, 1);
    row->addWidget(m_number);
    m_padded << header;
    return header;
}

QWidget *InspectorPane::makeFooter(const QString &text, const QString &help)
{
    auto *footer = new QWidget(this);
    footer->setFixedHeight(Metrics::toolbarHeight);
    auto *row = new QHBoxLayout(footer);
    auto *remove = Controls::button(QStringLiteral("trash"), text, help,
                                    QStringLiteral("destructive"), footer);
    connect(remove, &QAbstractButton::clicked, this, [this] { m_selection.deleteSelected(); });
    row->addWidget(remove);
    row->addStretch();
    row->setContentsMargins(Metrics::gap, 0, Metrics::gap, 0);
    return footer;
}

QWidget *InspectorPane::makeDemoPage()
{
    auto *body = new QWidget(this);
    auto *column = new QVBoxLayout(body);
    column->setSpacing(0);
    auto *title = new QLabel(tr("No step selected"), body);
    title->setFont(Theme::font(TextSize::title, QFont::DemiBold));
    title->setFixedHeight(Metrics::toolbarHeight);
    title->setWordWrap(true);
    column->addWidget(title);
    column->addWidget(Controls::note(hint(), QStringLiteral("note"), body));
    column->addSpacing(Metrics::pagePadding);
    column->addWidget(Controls::hairline(body));
    column->addSpacing(Metrics::pagePadding);
    column->addWidget(m_settings);
    column->addStretch();
    m_padded << body;
    return scrolled(body, this);
}

void InspectorPane::update()
{
    const qsizetype several = m_several->count();
    const auto place = StepList::selectedIndex(m_project);
    m_severalTitle->setText(tr("%1 steps selected").arg(several));
    m_pages->setCurrentIndex(several > 1 ? 1 : place ? 0 : 2);
    if (!place)
        return;
    const Step &step = m_project.steps().at(*place);
    m_tile->setKind(step.kind);
    m_title->setText(label(step.kind));
    const auto number = StepList::displayNumber(m_project.steps(), step.id);
    m_number->setText(number ? QString::number(*number) : QString());
}

void InspectorPane::setPadding(int padding)
{
    for (QWidget *page : m_padded)
        page->layout()->setContentsMargins(padding, 0, padding,
                                           page->minimumHeight() > 0 ? 0 : padding);
}

void InspectorPane::setLabelColumn(int width)
{
    m_form->setLabelColumn(width);
    m_several->setLabelColumn(width);
    m_settings->setLabelColumn(width);
}

} // namespace velvane
