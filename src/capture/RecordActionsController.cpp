#include "capture/RecordActionsController.h"

namespace velvane {

RecordActionsController::RecordActionsController(Project &project, Desktop &desktop,
                                                 QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_desktop(desktop)
{}

QString RecordActionsController::missing() const
{
    if (!m_held.isEmpty())
        return m_held;
    const QString reason = m_desktop.tap().missing();
    return reason.isEmpty() ? tr("This version of Velvane cannot record actions yet.") : reason;
}

void RecordActionsController::hold(const QString &reason)
{
    m_held = reason;
    Q_EMIT missingChanged();
}

void RecordActionsController::recordActions()
{
    Q_EMIT reported(missing());
}

} // namespace velvane
