#include "editor/SeveralStepsForm.h"

#include "base/OneDecimal.h"
#include "editor/Controls.h"
#include "editor/FormRow.h"
#include "editor/Metrics.h"
#include "editor/NumberField.h"
#include "editor/StepTile.h"
#include "model/StepList.h"
#include "timeline/Timeline.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace velvane {

SeveralStepsForm::SeveralStepsForm(Project &project, Selection &selection, StepClipboard &clipboard,
                                   FieldEditing &editing, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_gesture(editing.gesture())
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::gap);
    addKinds();
    column->addSpacing(Metrics::wideGap - Metrics::gap);
    column->addWidget(Controls::hairline(this));
    column->addSpacing(Metrics::wideGap - Metrics::gap);
    addTimes();
    addDuplicate(clipboard);
    connect(&m_project, &Project::stepsChanged, this, &SeveralStepsForm::update);
    connect(&m_selection, &Selection::targetsChanged, this, &SeveralStepsForm::update);
    update();
}

void SeveralStepsForm::addKinds()
{
    for (std::size_t i = 0; i < allStepKinds.size(); ++i) {
        auto *row = new QWidget(this);
        auto *line = new QHBoxLayout(row);
        line->setContentsMargins(0, 0, 0, 0);
        line->setSpacing(Metrics::gap);
        auto *tile = new StepTile(row);
        tile->setKind(allStepKinds[i]);
        line->addWidget(tile);
        line->addWidget(new QLabel(label(allStepKinds[i]), row), 1);
        auto *number = new QLabel(row);
        number->setProperty("look", QStringLiteral("hint"));
        line->addWidget(number);
        layout()->addWidget(row);
        m_kinds[i] = {row, number};
    }
}

void SeveralStepsForm::addTimes()
{
    m_lengthRow = new FormRow(tr("Together"), this);
    m_length = new QLabel(m_lengthRow);
    m_length->setMinimumHeight(Metrics::fieldHeight);
    m_lengthRow->add(m_length, 1);
    layout()->addWidget(m_lengthRow);
    m_pauseRow = new FormRow(tr("Pause"), this);
    m_pause = new NumberField(NumberField::Kind::seconds, tr("Pause of all selected"),
                              tr("How long to rest after each of these actions"), m_pauseRow);
    m_pauseRow->add(m_pause);
    m_pauseRow->addText(tr("s"));
    m_pauseRow->addStretch();
    layout()->addWidget(m_pauseRow);
    connect(m_pause, &NumberField::valueTyped, this, &SeveralStepsForm::setPauses);
    connect(m_pause, &NumberField::bumped, this, [this](double by) {
        if (const auto value = m_pause->value())
            setPauses(StepList::bump(*value, by, 0));
    });
    connect(m_pause, &NumberField::left, this, [this] { m_gesture.commit(); });
}

void SeveralStepsForm::addDuplicate(StepClipboard &clipboard)
{
    auto *row = new FormRow({}, this);
    auto *duplicate = Controls::button(QStringLiteral("plus.square.on.square"), tr("Duplicate"),
                                       tr("Duplicate the selected steps"), {}, row);
    connect(duplicate, &QAbstractButton::clicked, this, [&clipboard] { clipboard.duplicate(); });
    row->add(duplicate);
    row->addStretch();
    layout()->addWidget(row);
}

void SeveralStepsForm::update()
{
    // Most often one step is selected: that it exists need not be looked for.
    const QList<qsizetype> places =
        m_selection.targets().size() < 2 ? QList<qsizetype>() : m_selection.targetIndices();
    if (std::exchange(m_count, places.size()) != places.size())
        Q_EMIT countChanged();
    if (!isVisible() || places.isEmpty())
        return;
    showSteps(places);
    showPause(places);
}

void SeveralStepsForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    update();
}

void SeveralStepsForm::showSteps(const QList<qsizetype> &places)
{
    std::array<int, allStepKinds.size()> numbers{};
    Seconds together(0);
    for (const qsizetype place : places) {
        const Step &step = m_project.steps()[place];
        ++numbers[static_cast<std::size_t>(step.kind)];
        together += step.kind == StepKind::section ? 0s : Timeline::length(step);
    }
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        m_kinds[i].row->setVisible(numbers[i] > 0);
        m_kinds[i].number->setText(QString::number(numbers[i]));
    }
    m_length->setText(tr("%1s").arg(oneDecimal(together.count())));
}

void SeveralStepsForm::showPause(const QList<qsizetype> &places)
{
    std::optional<Seconds> pause;
    bool isShared = true;
    for (const qsizetype place : places) {
        const Step &step = m_project.steps()[place];
        if (step.kind == StepKind::section)
            continue;
        isShared = isShared && (!pause || *pause == step.pauseAfter);
        pause = step.pauseAfter;
    }
    m_pauseRow->setVisible(pause && isShared);
    if (pause && isShared)
        m_pause->setValue(pause->count());
}

void SeveralStepsForm::setPauses(double seconds)
{
    m_gesture.begin(FieldEditing::editName({.kind = Field::Kind::pause}));
    QList<Step> steps = m_project.steps();
    for (const qsizetype place : m_selection.targetIndices())
        if (steps[place].kind != StepKind::section)
            steps[place].pauseAfter = Seconds(std::max(seconds, 0.0));
    m_project.setSteps(steps);
}

void SeveralStepsForm::setLabelColumn(int width)
{
    m_lengthRow->setLabelColumn(width);
    m_pauseRow->setLabelColumn(width);
}

} // namespace velvane
