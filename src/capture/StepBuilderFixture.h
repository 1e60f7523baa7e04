#pragma once

#include "base/KeyCode.h"
#include "capture/StepBuilder.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

/// A builder that captures since 0 s on a canvas of 5000 × 5000; a test plays the user.
struct StepBuilderFixture : testing::Test {
    using Kind = InputEvent::Kind;

    StepBuilderFixture() { builder.setCapturing(true, now); }

    void hear(Kind kind, QPointF point)
    {
        builder.handle({.kind = kind, .point = point, .time = now});
    }
    void moveTo(QPointF point) { hear(Kind::mouseMoved, point); }
    void press(QPointF point) { hear(Kind::leftMouseDown, point); }
    void release(QPointF point) { hear(Kind::leftMouseUp, point); }
    void click(QPointF point)
    {
        press(point);
        release(point);
    }
    void rightClick(QPointF point)
    {
        hear(Kind::rightMouseDown, point);
        hear(Kind::rightMouseUp, point);
    }
    void key(quint16 code, quint64 modifiers = 0, const QString &text = {})
    {
        builder.handle({.kind = Kind::keyDown,
                        .keyCode = code,
                        .modifiers = modifiers,
                        .text = text,
                        .time = now});
    }
    /// Each character as a key of its own.
    void type(const QString &text)
    {
        for (const QChar character : text)
            key(0, 0, character);
    }
    void switchTo(const QString &name) { builder.activate({.name = name}, now); }
    /// The pointer rests for this long; the timer goes on.
    void rest(Seconds duration)
    {
        now += duration;
        builder.tick(now);
    }

    static Step step(StepKind kind)
    {
        Step made;
        made.kind = kind;
        return made;
    }
    const QList<Step> &steps() const { return builder.steps(); }
    QList<StepKind> kinds() const
    {
        QList<StepKind> all;
        for (const Step &step : steps())
            all << step.kind;
        return all;
    }

    static constexpr QPointF start{640, 400};
    Seconds now{0};
    StepBuilder builder{{5000, 5000}, start, now};
};

} // namespace velvane
