#include "model/StepList.h"

#include "model/Project.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace velvane::StepList {

namespace {

QString deleteName()
{
    return QCoreApplication::translate("StepList", "Delete Step");
}

// Changes one step in one copy of the list.
void changeStep(Project &project, qsizetype index, const std::function<void(Step &)> &change)
{
    QList<Step> steps = project.steps();
    change(steps[index]);
    project.setSteps(steps);
}

void setCollapsed(Project &project, qsizetype index, bool collapsed)
{
    project.changeWithoutUndo([&] {
        changeStep(project, index, [collapsed](Step &step) { step.collapsed = collapsed; });
    });
}

void selectAt(Project &project, qsizetype index)
{
    const QList<Step> &steps = project.steps();
    if (steps.isEmpty())
        project.setSelection({});
    else
        project.setSelection(steps[std::min(index, steps.size() - 1)].id);
}

QList<qsizetype> visibleIndices(const QList<Step> &steps)
{
    const QList<bool> visible = visibility(steps);
    QList<qsizetype> indices;
    for (qsizetype i = 0; i < steps.size(); ++i) {
        if (visible[i])
            indices << i;
    }
    return indices;
}

// Past the last step that moves along with the one at `start`.
qsizetype unitEnd(const QList<Step> &steps, qsizetype start)
{
    if (steps[start].kind != StepKind::section)
        return start + 1;
    const auto next = std::find_if(steps.begin() + start + 1, steps.end(),
                                   [](const Step &step) { return step.kind == StepKind::section; });
    return next - steps.begin();
}

} // namespace

QList<bool> visibility(const QList<Step> &steps)
{
    QList<bool> visible;
    visible.reserve(steps.size());
    bool hiding = false;
    for (const Step &step : steps) {
        const bool isSection = step.kind == StepKind::section;
        if (isSection)
            hiding = step.collapsed;
        visible << (isSection || !hiding);
    }
    return visible;
}

QList<std::optional<int>> displayNumbers(const QList<Step> &steps)
{
    QList<std::optional<int>> numbers;
    numbers.reserve(steps.size());
    int last = 0;
    for (const Step &step : steps) {
        if (step.kind == StepKind::section)
            numbers << std::nullopt;
        else
            numbers << ++last;
    }
    return numbers;
}

QList<Step> visibleSteps(const QList<Step> &steps)
{
    QList<Step> visible;
    for (const qsizetype index : visibleIndices(steps))
        visible << steps[index];
    return visible;
}

std::optional<int> displayNumber(const QList<Step> &steps, const QUuid &of)
{
    int last = 0;
    for (const Step &step : steps) {
        const bool isSection = step.kind == StepKind::section;
        last += isSection ? 0 : 1;
        if (step.id == of)
            return isSection ? std::nullopt : std::optional(last);
    }
    return {};
}

std::optional<qsizetype> index(const QList<Step> &steps, const QUuid &id)
{
    const auto found =
        std::find_if(steps.begin(), steps.end(), [&id](const Step &step) { return step.id == id; });
    return found == steps.end() ? std::nullopt : std::optional(found - steps.begin());
}

std::optional<qsizetype> selectedIndex(const Project &project)
{
    const auto selection = project.selection();
    return selection ? index(project.steps(), *selection) : std::nullopt;
}

std::optional<QUuid> selectedMoveID(const Project &project)
{
    const auto selected = selectedIndex(project);
    if (!selected || project.steps()[*selected].kind != StepKind::move)
        return {};
    return project.selection();
}

QStringList distinctSwitchApps(const QList<Step> &steps)
{
    QStringList names;
    QSet<QString> seen;
    for (const Step &step : steps) {
        const QString name = step.kind == StepKind::switchApp ? step.text.trimmed() : QString();
        if (name.isEmpty() || seen.contains(name))
            continue;
        seen << name;
        names << name;
    }
    return names;
}

bool hasSeveralSwitchApps(const QList<Step> &steps)
{
    QString first;
    for (const Step &step : steps) {
        const QString name = step.kind == StepKind::switchApp ? step.text.trimmed() : QString();
        if (!name.isEmpty() && !first.isEmpty() && name != first)
            return true;
        if (!name.isEmpty())
            first = name;
    }
    return false;
}

void addStep(Project &project, StepKind kind)
{
    const Step step = Step::withDefaults(kind, project.canvasSize());
    project.edit(QCoreApplication::translate("StepList", "Add %1").arg(label(kind)), [&] {
        const auto selected = selectedIndex(project);
        QList<Step> steps = project.steps();
        steps.insert(selected ? *selected + 1 : steps.size(), step);
        project.setSteps(steps);
    });
    if (kind != StepKind::section)
        uncollapseSectionContaining(project, step.id);
    project.setSelection(step.id);
}

void deleteStep(Project &project, const QUuid &id)
{
    const auto found = index(project.steps(), id);
    if (!found)
        return;
    project.edit(deleteName(), [&] {
        QList<Step> steps = project.steps();
        steps.removeAt(*found);
        project.setSteps(steps);
    });
    if (project.selection() == id)
        selectAt(project, *found);
}

void deleteSelected(Project &project, const QSet<QUuid> &selectedIDs, const QString &name)
{
    QSet<QUuid> ids = selectedIDs;
    if (ids.isEmpty() && project.selection())
        ids << *project.selection();
    const auto isDeleted = [&ids](const Step &step) { return ids.contains(step.id); };
    const QList<Step> &before = project.steps();
    const auto first = std::find_if(before.begin(), before.end(), isDeleted);
    if (first == before.end())
        return;
    const qsizetype place = first - before.begin();
    project.edit(name.isEmpty() ? deleteName() : name, [&] {
        QList<Step> steps = project.steps();
        steps.removeIf(isDeleted);
        project.setSteps(steps);
    });
    selectAt(project, place);
}

void moveVisible(Project &project, const QList<qsizetype> &from, qsizetype to)
{
    const QList<qsizetype> visible = visibleIndices(project.steps());
    const auto lowest = std::min_element(from.begin(), from.end());
    if (lowest == from.end() || *lowest < 0 || *lowest >= visible.size())
        return;
    QList<Step> steps = project.steps();
    const qsizetype start = visible[*lowest];
    const qsizetype end = unitEnd(steps, start);
    const qsizetype target =
        to < visible.size() ? visible[std::max<qsizetype>(to, 0)] : steps.size();
    if (target >= start && target < end)
        return;
    const QUuid moved = steps[start].id;
    project.edit(QCoreApplication::translate("StepList", "Reorder Steps"), [&] {
        const auto begin = steps.begin();
        if (target < start)
            std::rotate(begin + target, begin + start, begin + end);
        else
            std::rotate(begin + start, begin + end, begin + target);
        project.setSteps(steps);
    });
    uncollapseSectionContaining(project, moved);
}

void toggleCollapse(Project &project, const QUuid &id)
{
    const auto found = index(project.steps(), id);
    if (!found || project.steps()[*found].kind != StepKind::section)
        return;
    setCollapsed(project, *found, !project.steps()[*found].collapsed);
}

void uncollapseSectionContaining(Project &project, const QUuid &id)
{
    const QList<Step> &steps = project.steps();
    for (qsizetype i = index(steps, id).value_or(0) - 1; i >= 0; --i) {
        if (steps[i].kind != StepKind::section)
            continue;
        if (steps[i].collapsed)
            setCollapsed(project, i, false);
        return;
    }
}

void setApp(Project &project, qsizetype index, const QString &name)
{
    const QList<Step> &steps = project.steps();
    if (index < 0 || index >= steps.size() || steps[index].kind != StepKind::switchApp)
        return;
    project.edit(QCoreApplication::translate("StepList", "Set App"),
                 [&] { changeStep(project, index, [&name](Step &step) { step.text = name; }); });
}

double bump(double value, double by, double min)
{
    return std::max(min, std::round((value + by) * 10) / 10);
}

double bumpCoord(double value, double by)
{
    // Adding 0 turns a negative zero into a plain one.
    return std::max(std::round(value + by), 0.0) + 0.0;
}

} // namespace velvane::StepList
