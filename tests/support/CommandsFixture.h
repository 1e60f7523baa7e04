#pragma once

#include "editor/DemoCommands.h"
#include "editor/DocumentCommands.h"
#include "editor/FocusedActions.h"
#include "editor/StepCommands.h"
#include "editor/ViewCommands.h"
#include "support/MenuReader.h"

namespace velvane {

/// The four menus over a record of which tests set the flags; calls are noted.
struct CommandsFixture : testing::Test {
    CommandsFixture()
    {
        DocumentCommands::addTo(file, focused);
        DemoCommands::addTo(demo, focused);
        ViewCommands::addTo(view, focused);
        StepCommands::addTo(step, focused);
    }

    MenuActions record()
    {
        MenuActions made;
        const auto note = [this](const QString &name) { return [=, this] { calls << name; }; };
        made.runLive = note("runLive");
        made.record = note("record");
        made.playPause = note("playPause");
        made.goToStart = note("goToStart");
        made.toggleLive = note("toggleLive");
        made.toggleFreeze = note("toggleFreeze");
        made.toggleRecording = note("toggleRecording");
        made.toggleZoom = note("toggleZoom");
        made.addStep = [this](StepKind kind) { calls << "addStep " + id(kind); };
        made.deleteStep = note("deleteStep");
        made.pickLocation = note("pickLocation");
        made.setRecordMode = [this](RecordMode mode) { calls << "setRecordMode " + id(mode); };
        made.setRecordCursor = [this](bool on) {
            calls << QStringLiteral("setRecordCursor %1").arg(on);
        };
        return made;
    }
    /// Publishes a record after the test has changed it.
    void publish(const std::function<void(MenuActions &)> &change = [](MenuActions &) {})
    {
        MenuActions actions = record();
        change(actions);
        focused.publish(actions);
    }

    FocusedActions focused;
    QMenu file;
    QMenu demo;
    QMenu view;
    QMenu step;
    MenuReader inFile{file};
    MenuReader inDemo{demo};
    MenuReader inView{view};
    MenuReader inStep{step};
    QStringList calls;
};

} // namespace velvane
