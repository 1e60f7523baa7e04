#pragma once

#include "base/KeyCode.h"
#include "capture/RecordActionsController.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace velvane {

/// A controller over a simulated desktop on which a test plays the user: 2.5 seconds after it
/// has begun, it captures.
struct RecordActionsFixture : testing::Test {
    using Kind = InputEvent::Kind;

    RecordActionsFixture()
    {
        project.setUndoManager(&undo);
        project.setCanvasSize({1920, 1080});
        QObject::connect(&controller, &RecordActionsController::reported,
                         [this](const QString &message) { reported << message; });
    }

    void record() { runToEnd(controller.record()); }
    void at(Seconds time, std::function<void()> call) { desktop.clock().at(time, std::move(call)); }
    void hear(Kind kind, QPointF point)
    {
        desktop.tap().hear({.kind = kind, .point = point, .time = desktop.clock().now()});
    }
    void click()
    {
        hear(Kind::leftMouseDown, project.startPoint());
        hear(Kind::leftMouseUp, project.startPoint());
    }
    void clickAt(Seconds time)
    {
        at(time, [this] { click(); });
    }
    void pressEscapeAt(Seconds time)
    {
        at(time, [this] { desktop.press(KeyCode::escape); });
    }
    QString panelText()
    {
        return controller.recorder() ? controller.recorder()->panelText() : QString();
    }
    /// What is left listening or watching.
    int ears() { return desktop.tap().listeners() + desktop.keys().watches(); }
    double now() { return desktop.clock().now().count(); }

    TemporaryHome home;
    SimulatedDesktop desktop;
    Project project;
    QUndoStack undo;
    Playback playback;
    RecordActionsController controller{project, playback, desktop};
    QStringList reported;
};

} // namespace velvane
