#include "editor/StepClipboard.h"

#include "editor/StepMime.h"
#include "model/StepList.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace velvane {

StepClipboard::StepClipboard(Project &project, Selection &selection, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_selection(selection)
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &StepClipboard::clipboardChanged);
}

bool StepClipboard::canCopy() const
{
    return m_selection.canDelete();
}

bool StepClipboard::canPaste() const
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(StepMime::type());
}

void StepClipboard::cut()
{
    const QList<Step> steps = selectedSteps();
    if (steps.isEmpty())
        return;
    write(steps);
    m_selection.deleteSelected(tr("Cut Steps"));
}

void StepClipboard::copy() const
{
    const QList<Step> steps = selectedSteps();
    if (!steps.isEmpty())
        write(steps);
}

void StepClipboard::paste()
{
    if (const QMimeData *data = QGuiApplication::clipboard()->mimeData())
        insert(StepMime::read(*data, m_project.recordingBookmark()), tr("Paste Steps"));
}

void StepClipboard::duplicate()
{
    QList<Step> copies = selectedSteps();
    for (Step &step : copies)
        step.id = QUuid::createUuid();
    insert(copies, tr("Duplicate Steps"));
}

QList<Step> StepClipboard::selectedSteps() const
{
    QList<Step> steps;
    for (const qsizetype index : m_selection.targetIndices())
        steps << m_project.steps()[index];
    return steps;
}

void StepClipboard::write(const QList<Step> &steps) const
{
    // The clipboard takes the data over.
    QGuiApplication::clipboard()->setMimeData(
        StepMime::write(steps, m_project.recordingBookmark()).release());
}

void StepClipboard::insert(const QList<Step> &added, const QString &name)
{
    if (added.isEmpty())
        return;
    const QList<qsizetype> selected = m_selection.targetIndices();
    QSet<QUuid> ids;
    m_project.edit(name, [&] {
        const QList<Step> &before = m_project.steps();
        const qsizetype place = selected.isEmpty() ? before.size() : selected.last() + 1;
        QList<Step> steps;
        steps.reserve(before.size() + added.size());
        steps << before.first(place) << added << before.sliced(place);
        m_project.setSteps(steps);
    });
    for (const Step &step : added)
        ids << step.id;
    if (added.first().kind != StepKind::section)
        StepList::uncollapseSectionContaining(m_project, added.first().id);
    m_selection.setSelectedIDs(ids, added.first().id);
}

} // namespace velvane
