#pragma once

#include "base/KeyCode.h"
#include "live/LiveRunController.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

namespace velvane {

/// A controller over a simulated desktop; what it says and shows is noted.
struct LiveRunFixture : testing::Test {
    LiveRunFixture()
    {
        QObject::connect(&controller, &LiveRunController::reported,
                         [this](const QString &message) { reported << message; });
    }

    static Step stepOf(StepKind kind, Seconds pauseAfter = 0s)
    {
        Step step;
        step.kind = kind;
        step.pauseAfter = pauseAfter;
        return step;
    }
    static Step moveTo(QPointF point)
    {
        Step step = stepOf(StepKind::move);
        step.point = point;
        step.duration = 0s;
        return step;
    }
    void run(std::optional<QUuid> from = {}) { runToEnd(controller.runLive(from)); }
    void pressEscapeAt(Seconds time)
    {
        desktop.clock().at(time, [this] { desktop.press(KeyCode::escape); });
    }
    double now() { return desktop.clock().now().count(); }

    SimulatedDesktop desktop;
    Project project;
    Playback playback;
    RunOptions options;
    LiveRunController controller{project, playback, desktop, [this] { return options; }};
    QStringList reported;
};

} // namespace velvane
