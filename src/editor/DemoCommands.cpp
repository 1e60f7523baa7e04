#include "editor/DemoCommands.h"

#include "editor/CommandMenu.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace velvane::DemoCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("DemoCommands", text);
}

void addModes(CommandMenu &commands, QMenu &menu, FocusedActions &focused)
{
    auto *group = new QActionGroup(&menu);
    // None is checked while the chosen mode is not offered.
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    const auto add = [&](const QString &text, const QString &symbol, RecordMode mode) {
        QAction *action = commands.add({
            .text = text,
            .symbol = symbol,
            .run = [mode](const MenuActions &actions) { actions.setRecordMode(mode); },
            .isChecked = [mode](const MenuActions &actions) { return actions.recordMode == mode; },
        });
        group->addAction(action);
        return action;
    };
    add(tr("Don't Record"), QStringLiteral("video.slash"), RecordMode::off);
    add(tr("Record Screen"), QStringLiteral("video"), RecordMode::screen);
    QAction *window =
        add(tr("Record Active Window"), QStringLiteral("macwindow"), RecordMode::window);
    const auto offer = [window, &focused] {
        const auto &actions = focused.menuActions();
        window->setVisible(actions && actions->windowRecordingAvailable);
    };
    QObject::connect(&focused, &FocusedActions::published, window, offer);
    offer();
}

void addScreenRecording(CommandMenu &demo, FocusedActions &focused)
{
    QMenu *menu =
        demo.addSubmenu(tr("Screen Recording"), QStringLiteral("video.badge.checkmark"), true);
    CommandMenu commands(*menu, focused);
    addModes(commands, *menu, focused);
    commands.addDivider();
    commands.add({
        .text = tr("Show Mouse Cursor"),
        .symbol = QStringLiteral("cursorarrow"),
        .run = [](const MenuActions &actions) { actions.setRecordCursor(!actions.recordCursor); },
        // It matters only to what is recorded.
        .isEnabled =
            [](const MenuActions &actions) { return actions.recordMode != RecordMode::off; },
        .isChecked = [](const MenuActions &actions) { return actions.recordCursor; },
    });
}

} // namespace

void addTo(QMenu &menu, FocusedActions &focused)
{
    CommandMenu commands(menu, focused);
    commands.add({
        .text = tr("Run Live"),
        .symbol = QStringLiteral("cursorarrow.motionlines"),
        .run = [](const MenuActions &actions) { actions.runLive(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canRunLive; },
        .shortcut = Qt::CTRL | Qt::Key_R,
    });
    addScreenRecording(commands, focused);
    commands.addDivider();
    commands.add({
        .text = tr("Play"),
        .symbol = QStringLiteral("play.fill"),
        .run = [](const MenuActions &actions) { actions.playPause(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canPlayPause; },
        .isOther = [](const MenuActions &actions) { return actions.isPlaying; },
        .otherText = tr("Pause"),
        .otherSymbol = QStringLiteral("pause.fill"),
    });
    commands.add({
        .text = tr("Go to Start"),
        .symbol = QStringLiteral("backward.end.fill"),
        .run = [](const MenuActions &actions) { actions.goToStart(); },
        .isEnabled = [](const MenuActions &actions) { return actions.canGoToStart; },
    });
}

} // namespace velvane::DemoCommands
