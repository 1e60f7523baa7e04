#include "live/Run.h"

#include "base/Geometry.h"
#include "live/Applications.h"
#include "live/Travel.h"
#include "live/Typing.h"

#include <algorithm>
#include <cmath>

namespace velvane::Live {

namespace {

bool isFinite(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

// More intervals than any run lives to see, and all of them exact as a double.
constexpr qint64 mostIntervals = qint64(1) << 53;

class Performance {
public:
    Performance(Desktop &desktop, const Snapshot &demo, bool hideOthers, const CancelCheck &cancel)
        : m_desktop(desktop)
        , m_demo(demo)
        , m_hideOthers(hideOthers)
        , m_pace(desktop, cancel)
        , m_position(isFinite(demo.startPoint) ? demo.startPoint
                                               : desktop.screens().pointer().value_or(QPointF()))
    {}

    void perform()
    {
        input().moveTo(m_position, false);
        performSteps();
        if (m_held)
            input().release(MouseButton::left, m_position);
    }

private:
    InputSynthesizer &input() { return m_desktop.input(); }

    void performSteps()
    {
        for (const Step &step : m_demo.steps) {
            if (step.kind == StepKind::section)
                continue;
            if (m_pace.isOver())
                return;
            performStep(step);
            if (m_pace.isOver())
                return;
            m_pace.sleep(step.pauseAfter);
        }
    }

    void performStep(const Step &step)
    {
        switch (step.kind) {
        case StepKind::move:
            return move(step);
        case StepKind::click:
            return click(MouseButton::left);
        case StepKind::rightClick:
            return click(MouseButton::right);
        case StepKind::hold:
            m_held = true;
            return input().press(MouseButton::left, m_position);
        case StepKind::release:
            m_held = false;
            return input().release(MouseButton::left, m_position);
        case StepKind::type:
            return typeString(input(), step.text, step.duration, m_pace);
        case StepKind::shortcut:
            // Key 0 is a real one, but alone it is what a shortcut holds before it is recorded.
            if (step.keyCode != 0 || step.modifiers != 0)
                input().pressKey(step.keyCode, step.modifiers);
            return;
        case StepKind::switchApp:
            return switchApp(step);
        case StepKind::wait:
        case StepKind::section:
            return;
        }
    }

    void move(const Step &step)
    {
        const int rate = travelRate(m_demo.fps);
        const qint64 count =
            std::clamp(truncated(step.duration.count() * rate), qint64(1), mostIntervals);
        travel(input(), {m_position, step.point, count}, Seconds(1.0 / rate), m_held, m_pace);
        // No event leads to a point that is not finite, and later ones need a place.
        if (isFinite(step.point))
            m_position = step.point;
    }

    void click(MouseButton button)
    {
        input().press(button, m_position);
        input().release(button, m_position);
    }

    void switchApp(const Step &step)
    {
        activate(m_desktop, step.text);
        if (step.centerWindow)
            centerWindow(m_desktop, step.text);
        if (m_hideOthers)
            hideOtherApps(m_desktop, step.text);
        // None of this shortens the pause that the application may need to come forward.
        m_pace.restart();
    }

    Desktop &m_desktop;
    const Snapshot &m_demo;
    const bool m_hideOthers;
    Pace m_pace;
    QPointF m_position;
    /// Is the left button down because of a hold step? A click in between does not change it.
    bool m_held = false;
};

} // namespace

void run(Desktop &desktop, const Snapshot &demo, bool hideOthers, const CancelCheck &shouldCancel)
{
    Performance(desktop, demo, hideOthers, shouldCancel).perform();
}

} // namespace velvane::Live
