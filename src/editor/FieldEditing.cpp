#include "editor/FieldEditing.h"

#include "editor/DemoSettings.h"
#include "model/StepList.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

using Kind = Field::Kind;

// The shortest action that a stepper leaves.
constexpr double minDuration = 0.05;

bool isOfDemo(Kind kind)
{
    return kind >= Kind::canvasWidth;
}

int rate(double value)
{
    return static_cast<int>(
        std::clamp<double>(std::round(value), DemoSettings::minFps, DemoSettings::maxFps));
}

void write(Step &step, Kind kind, double value)
{
    switch (kind) {
    case Kind::pause:
        step.pauseAfter = Seconds(std::max(value, 0.0));
        break;
    case Kind::duration:
        step.duration = Seconds(std::max(value, 0.0));
        break;
    case Kind::x:
        step.point.setX(value);
        break;
    case Kind::y:
        step.point.setY(value);
        break;
    default:
        break;
    }
}

void write(Project &project, Kind kind, double value)
{
    const QSizeF canvas = project.canvasSize();
    const QPointF start = project.startPoint();
    switch (kind) {
    case Kind::canvasWidth:
        project.setCanvasSize({DemoSettings::side(value), canvas.height()});
        break;
    case Kind::canvasHeight:
        project.setCanvasSize({canvas.width(), DemoSettings::side(value)});
        break;
    case Kind::fps:
        project.setFps(rate(value));
        break;
    case Kind::startX:
        project.setStartPoint({value, start.y()});
        break;
    case Kind::startY:
        project.setStartPoint({start.x(), value});
        break;
    default:
        break;
    }
}

std::optional<double> numberOf(const Step &step, Kind kind)
{
    switch (kind) {
    case Kind::pause:
        return step.pauseAfter.count();
    case Kind::duration:
        return step.duration.count();
    case Kind::x:
        return step.point.x();
    case Kind::y:
        return step.point.y();
    default:
        return {};
    }
}

std::optional<double> numberOf(const Project &project, Kind kind)
{
    switch (kind) {
    case Kind::canvasWidth:
        return project.canvasSize().width();
    case Kind::canvasHeight:
        return project.canvasSize().height();
    case Kind::fps:
        return project.fps();
    case Kind::startX:
        return project.startPoint().x();
    case Kind::startY:
        return project.startPoint().y();
    default:
        return {};
    }
}

double bumped(Kind kind, double value, double by)
{
    switch (kind) {
    case Kind::duration:
        return StepList::bump(value, by, minDuration);
    case Kind::pause:
        return StepList::bump(value, by, 0);
    default:
        return StepList::bumpCoord(value, by);
    }
}

} // namespace

FieldEditing::FieldEditing(Project &project, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_gesture(project)
{}

void FieldEditing::setFocusedField(std::optional<Field> field)
{
    if (field == m_focusedField)
        return;
    m_gesture.commit();
    m_focusedField = field;
    if (field)
        m_gesture.begin(editName(*field));
    Q_EMIT focusedFieldChanged();
}

std::optional<double> FieldEditing::number(Field field) const
{
    if (isOfDemo(field.kind))
        return numberOf(m_project, field.kind);
    const auto index = stepIndex(field);
    return index ? numberOf(m_project.steps()[*index], field.kind) : std::nullopt;
}

void FieldEditing::setNumber(Field field, double value)
{
    if (!std::isfinite(value) || !number(field))
        return;
    m_gesture.begin(editName(field));
    if (isOfDemo(field.kind)) {
        write(m_project, field.kind, value);
        return;
    }
    QList<Step> steps = m_project.steps();
    write(steps[*stepIndex(field)], field.kind, value);
    m_project.setSteps(steps);
}

void FieldEditing::bump(Field field, double by)
{
    if (const auto value = number(field))
        setNumber(field, bumped(field.kind, *value, by));
}

std::optional<QString> FieldEditing::text() const
{
    const auto index = StepList::selectedIndex(m_project);
    return index ? std::optional(m_project.steps()[*index].text) : std::nullopt;
}

void FieldEditing::setText(const QString &text)
{
    const auto index = StepList::selectedIndex(m_project);
    if (!index)
        return;
    m_gesture.begin(editName({.kind = Kind::text}));
    QList<Step> steps = m_project.steps();
    steps[*index].text = text;
    m_project.setSteps(steps);
}

void FieldEditing::undo()
{
    m_gesture.commit();
    if (QUndoStack *stack = m_project.undoManager())
        stack->undo();
}

void FieldEditing::redo()
{
    m_gesture.commit();
    if (QUndoStack *stack = m_project.undoManager())
        stack->redo();
}

QString FieldEditing::editName(Field field)
{
    switch (field.kind) {
    case Kind::pause:
        return tr("Change Pause");
    case Kind::x:
    case Kind::y:
        return tr("Move Target");
    case Kind::text:
        return tr("Edit Text");
    case Kind::duration:
        return tr("Change Duration");
    case Kind::canvasWidth:
    case Kind::canvasHeight:
        return tr("Change Canvas");
    case Kind::fps:
        return tr("Change Frame Rate");
    case Kind::startX:
    case Kind::startY:
        return tr("Move Start");
    }
    return {};
}

std::optional<qsizetype> FieldEditing::stepIndex(Field field) const
{
    if (field.kind != Kind::pause)
        return StepList::selectedIndex(m_project);
    const bool exists = field.step >= 0 && field.step < m_project.steps().size();
    return exists ? std::optional(field.step) : std::nullopt;
}

} // namespace velvane
