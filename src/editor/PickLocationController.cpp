#include "editor/PickLocationController.h"

#include "model/StepList.h"

namespace velvane {

PickLocationController::PickLocationController(Project &project, StatusLine &status,
                                               Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_status(status)
    , m_desktop(desktop)
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
    if (!m_held.isEmpty())
        return m_held;
    const QString reason = m_desktop.screens().missing();
    return reason.isEmpty() ? tr("This version of Velvane cannot pick locations yet.") : reason;
}

void PickLocationController::hold(const QString &reason)
{
    m_held = reason;
    Q_EMIT canPickLocationChanged();
}

void PickLocationController::pickLocation()
{
    m_status.setMessage(missing());
}

} // namespace velvane
