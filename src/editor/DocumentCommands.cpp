#include "editor/DocumentCommands.h"

#include "editor/FocusedActions.h"
#include "editor/Icons.h"

#include <QCoreApplication>
#include <QMenu>

namespace velvane::DocumentCommands {

void addTo(QMenu &menu, FocusedActions &focused)
{
    const QString symbol = QStringLiteral("square.and.arrow.up");
    QAction *action = menu.addAction(
        Icons::icon(symbol), QCoreApplication::translate("DocumentCommands", "Export to Video…"));
    action->setProperty("symbol", symbol);
    action->setShortcut(Qt::CTRL | Qt::Key_E);
    QObject::connect(action, &QAction::triggered, action, [&focused] {
        // The export withdraws the published action while it is being called.
        if (const auto exportVideo = focused.exportVideo())
            exportVideo->run();
    });
    const auto follow = [action, &focused] {
        action->setEnabled(focused.exportVideo().has_value());
    };
    QObject::connect(&focused, &FocusedActions::published, action, follow);
    follow();
}

} // namespace velvane::DocumentCommands
