#pragma once

#include "live/Run.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

inline Step stepOf(StepKind kind, Seconds pauseAfter = 0s)
{
    Step step;
    step.kind = kind;
    step.pauseAfter = pauseAfter;
    return step;
}

inline Step moveTo(QPointF point, Seconds duration = 0s, Seconds pauseAfter = 0s)
{
    Step step = stepOf(StepKind::move, pauseAfter);
    step.point = point;
    step.duration = duration;
    return step;
}

inline Step shortcut(quint16 keyCode, quint64 modifiers)
{
    Step step = stepOf(StepKind::shortcut);
    step.keyCode = keyCode;
    step.modifiers = modifiers;
    return step;
}

inline Step switchTo(const QString &name)
{
    Step step = stepOf(StepKind::switchApp);
    step.text = name;
    return step;
}

/// Performs steps on a simulated desktop, from (10, 20) at 60 frames a second.
class LiveDriver : public testing::Test {
protected:
    void run(const QList<Step> &steps)
    {
        demo.steps = steps;
        Live::run(desktop, demo, hideOthers, [this] { return cancelled; });
    }
    void cancelAt(Seconds time)
    {
        desktop.clock().at(time, [this] { cancelled = true; });
    }
    void runApp(const QString &name)
    {
        AppInfo app;
        app.name = name;
        desktop.apps().run(app);
    }
    double now() { return desktop.clock().now().count(); }

    SimulatedDesktop desktop;
    Snapshot demo{
        .steps = {}, .startPoint = {10, 20}, .canvasSize = {}, .fps = 60, .background = {}};
    bool hideOthers = false;
    bool cancelled = false;
};

} // namespace velvane
