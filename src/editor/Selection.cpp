#include "editor/Selection.h"

#include "model/StepList.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace velvane {

Selection::Selection(Project &project, QObject *parent) : QObject(parent), m_project(project)
{
    connect(&project, &Project::selectionChanged, this, &Selection::followProject);
}

void Selection::setSelectedIDs(const QSet<QUuid> &ids, std::optional<QUuid> current)
{
    if (!current || !ids.contains(*current))
        current = m_project.selection();
    if (!current || !ids.contains(*current)) {
        const QList<Step> &steps = m_project.steps();
        const auto first = std::find_if(steps.begin(), steps.end(),
                                        [&ids](const Step &step) { return ids.contains(step.id); });
        current = first == steps.end() ? std::nullopt : std::optional(first->id);
    }
    change(ids, current);
}

void Selection::select(std::optional<QUuid> id)
{
    change(id ? QSet<QUuid>{*id} : QSet<QUuid>(), id);
}

void Selection::selectAll()
{
    QSet<QUuid> ids;
    ids.reserve(m_project.steps().size());
    for (const Step &step : m_project.steps())
        ids << step.id;
    setSelectedIDs(ids);
}

QSet<QUuid> Selection::targets() const
{
    const auto selected = m_project.selection();
    if (!m_selectedIDs.isEmpty() || !selected)
        return m_selectedIDs;
    return {*selected};
}

QList<qsizetype> Selection::targetIndices() const
{
    const QSet<QUuid> ids = targets();
    QList<qsizetype> indices;
    const QList<Step> &steps = m_project.steps();
    for (qsizetype i = 0; i < steps.size() && indices.size() < ids.size(); ++i) {
        if (ids.contains(steps[i].id))
            indices << i;
    }
    return indices;
}

bool Selection::canDelete() const
{
    const QSet<QUuid> ids = targets();
    const QList<Step> &steps = m_project.steps();
    return !ids.isEmpty() && std::any_of(steps.begin(), steps.end(), [&ids](const Step &step) {
        return ids.contains(step.id);
    });
}

void Selection::deleteSelected(const QString &name)
{
    const QSet<QUuid> before = targets();
    {
        const QScopedValueRollback leading(m_leading, true);
        StepList::deleteSelected(m_project, m_selectedIDs, name);
    }
    if (!std::exchange(m_selectedIDs, {}).isEmpty())
        Q_EMIT selectedIDsChanged();
    if (targets() != before)
        Q_EMIT targetsChanged();
}

void Selection::change(const QSet<QUuid> &ids, std::optional<QUuid> current)
{
    const QSet<QUuid> before = targets();
    const bool differs = ids != m_selectedIDs;
    m_selectedIDs = ids;
    {
        const QScopedValueRollback leading(m_leading, true);
        m_project.setSelection(current);
    }
    if (differs)
        Q_EMIT selectedIDsChanged();
    if (targets() != before)
        Q_EMIT targetsChanged();
}

void Selection::followProject()
{
    if (m_leading)
        return;
    const auto selected = m_project.selection();
    const bool holds = selected && m_selectedIDs.contains(*selected);
    if (holds)
        return;
    if (!std::exchange(m_selectedIDs, {}).isEmpty())
        Q_EMIT selectedIDsChanged();
    Q_EMIT targetsChanged();
}

} // namespace velvane
