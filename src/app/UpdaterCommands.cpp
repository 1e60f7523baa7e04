#include "app/UpdaterCommands.h"

#include "app/Question.h"
#include "app/UpdaterController.h"

#include <QCoreApplication>
#include <QMenu>

namespace velvane::UpdaterCommands {

namespace {

void check(QWidget *window)
{
    UpdaterController &updater = UpdaterController::shared();
    // The other windows did not ask.
    const auto once = Qt::SingleShotConnection;
    QObject::connect(
        &updater, &UpdaterController::checked, window,
        [window](const QString &message) { ask(window, Question::message(message)); }, once);
    updater.checkForUpdates();
}

} // namespace

void addTo(QMenu &menu, QWidget &window)
{
    QAction *action =
        menu.addAction(QCoreApplication::translate("UpdaterCommands", "Check for Updates…"));
    QObject::connect(action, &QAction::triggered, &window, [&window] { check(&window); });
}

} // namespace velvane::UpdaterCommands
