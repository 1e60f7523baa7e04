#include "editor/StepCommands.h"

#include "editor/CommandMenu.h"
#include "editor/Icons.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace velvane::StepCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("StepCommands", text);
}

void addKinds(CommandMenu &step, FocusedActions &focused)
{
    QMenu *menu = step.addSubmenu(tr("Add Step"), QStringLiteral("plus.circle"));
    CommandMenu commands(*menu, focused);
    for (const StepKind kind : allStepKinds) {
        QAction *action = commands.add({
            .text = label(kind),
            .symbol = symbol(kind),
            .run = [kind](const MenuActions &actions) { actions.addStep(kind); },
        });
        action->setIcon(Icons::stepIcon(kind));
    }
}

} // namespace

void addTo(QMenu &menu, FocusedActions &focused)
{
    CommandMenu commands(menu, focused);
    addKinds(commands, focused);
    commands.add({
        .text = tr("Record Actions"),
        .symbol = QStringLiteral("record.circle"),
        .run = [](const MenuActions &actions) { actions.record(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canRecord; },
        .shortcut = Qt::CTRL | Qt::SHIFT | Qt::Key_R,
        .isOther = [](const MenuActions &actions) { return actions.isRecording; },
        .otherText = tr("Recording — Esc to Stop"),
    });
    commands.add({
        .text = tr("Pick Location on Screen…"),
        .symbol = QStringLiteral("dot.scope"),
        .run = [](const MenuActions &actions) { actions.pickLocation(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canPickLocation; },
    });
    commands.addDivider();
    commands.add({
        .text = tr("Delete Step"),
        .symbol = QStringLiteral("trash"),
        .run = [](const MenuActions &actions) { actions.deleteStep(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canDelete; },
    });
}

} // namespace velvane::StepCommands
