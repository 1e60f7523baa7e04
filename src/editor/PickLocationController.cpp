#include "editor/PickLocationController.h"

#include "editor/CanvasGeometry.h"
#include "model/StepList.h"

namespace velvane {

namespace {

constexpr int countdown = 10;

} // namespace

PickLocationController::PickLocationController(Project &project, StatusLine &status,
                                               Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_status(status)
    , m_desktop(desktop)
    , m_locationPicker(desktop)
{
    const auto changed = &PickLocationController::canPickLocationChanged;
    connect(&project, &Project::selectionChanged, this, changed);
    connect(&project, &Project::stepsChanged, this, changed);
}

bool PickLocationController::canPickLocation() const
{
    return missing().isEmpty() && StepList::selectedMoveID(m_project);
}

QString PickLocationController::missing() const
{
    return m_held.isEmpty() ? m_desktop.screens().missing() : m_held;
}

void PickLocationController::hold(const QString &reason)
{
    m_held = reason;
    if (!reason.isEmpty())
        m_locationPicker.cancel();
    Q_EMIT canPickLocationChanged();
}

void PickLocationController::pickLocation()
{
    if (const auto move = StepList::selectedMoveID(m_project))
        pickLocation(*move);
}

void PickLocationController::pickLocation(const QUuid &of)
{
    if (const QString reason = missing(); !reason.isEmpty()) {
        m_status.setMessage(reason);
        return;
    }
    m_status.setMessage(tr("Pick on screen — position the cursor over the target."));
    m_locationPicker.pick(countdown, [this, of](QPointF place) { setTarget(of, place); });
}

void PickLocationController::setTarget(const QUuid &of, QPointF place)
{
    const auto index = StepList::index(m_project.steps(), of);
    if (!index)
        return;
    const QPointF target = wholeAndInside(place, m_project.canvasSize());
    m_project.edit(tr("Pick Location"), [&] {
        QList<Step> steps = m_project.steps();
        steps[*index].point = target;
        m_project.setSteps(steps);
    });
    m_status.setMessage(
        tr("Captured target at (%1, %2)").arg(target.x(), 0, 'f', 0).arg(target.y(), 0, 'f', 0));
}

} // namespace velvane
