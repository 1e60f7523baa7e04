#include "app/UpdaterController.h"

namespace velvane {

UpdaterController &UpdaterController::shared()
{
    static UpdaterController updater;
    return updater;
}

void UpdaterController::checkForUpdates()
{
    Q_EMIT checked(tr("No update feed is configured, so Velvane cannot check for updates."));
}

} // namespace velvane
