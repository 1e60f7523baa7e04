#include "editor/ViewCommands.h"

#include "editor/CommandMenu.h"

#include <QCoreApplication>

namespace velvane::ViewCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ViewCommands", text);
}

} // namespace

void addTo(QMenu &menu, FocusedActions &focused)
{
    CommandMenu commands(menu, focused);
    commands.add({
        .text = tr("Live Backdrop"),
        .symbol = QStringLiteral("macwindow"),
        .run = [](const MenuActions &actions) { actions.toggleLive(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canToggleLive; },
        .isChecked = [](const MenuActions &actions) { return actions.liveOn; },
        .shortcut = Qt::CTRL | Qt::Key_1,
    });
    commands.add({
        .text = tr("Freeze"),
        .symbol = QStringLiteral("snowflake"),
        .run = [](const MenuActions &actions) { actions.toggleFreeze(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canFreeze; },
        .isChecked = [](const MenuActions &actions) { return actions.freezeOn; },
        .shortcut = Qt::CTRL | Qt::Key_2,
    });
    commands.add({
        .text = tr("Recording Backdrop"),
        .symbol = QStringLiteral("film"),
        .run = [](const MenuActions &actions) { actions.toggleRecording(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canRecordingBackdrop; },
        .isChecked = [](const MenuActions &actions) { return actions.recordingOn; },
        .shortcut = Qt::CTRL | Qt::Key_3,
    });
    commands.addDivider();
    commands.add({
        .text = tr("Zoom 4×"),
        .symbol = QStringLiteral("plus.magnifyingglass"),
        .run = [](const MenuActions &actions) { actions.toggleZoom(); },
        .isChecked = [](const MenuActions &actions) { return actions.zoomOn; },
        .shortcut = Qt::CTRL | Qt::Key_8,
    });
}

} // namespace velvane::ViewCommands
