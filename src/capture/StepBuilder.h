#pragma once

#include "model/Step.h"
#include "platform/AppInfo.h"
#include "platform/InputEvent.h"

#include <QList>

#include <optional>

namespace velvane {

/// Makes steps of a person's input: events and times in, steps out.
///
/// Places are points of the screen, which are points of the canvas; they are rounded to whole
/// points and kept inside the canvas. Times are those of one monotonic clock; one that jumps back
/// yields no pause, and the steps' offsets never descend.
class StepBuilder {
public:
    /// An empty canvas counts as 1280 × 800. The cursor is at `startPoint` where the steps begin.
    StepBuilder(QSizeF canvas, QPointF startPoint, Seconds now);

    /// While capturing, input becomes steps; the steps' offsets count from when it was switched on.
    void setCapturing(bool on, Seconds now);
    bool isCapturing() const { return m_capturing; }

    /// An event of mouse or keyboard. Escape is never recorded.
    void handle(const InputEvent &event);
    /// Time has passed: a pointer that rests becomes a move.
    void tick(Seconds now);
    /// An application has become the active one.
    void activate(const AppInfo &app, Seconds now);

    /// Stops capturing and hands out what was recorded, characters still waiting included.
    QList<Step> finish(Seconds now);

    /// What finish() would hand out; capturing goes on.
    QList<Step> soFar(Seconds now) const { return StepBuilder(*this).finish(now); }

    const QList<Step> &steps() const { return m_steps; }

private:
    QPointF onCanvas(QPointF place) const;
    void release(QPointF place, Seconds now);
    void handleKey(const InputEvent &event);
    void anchorMove(QPointF to, Seconds now);
    void flushType(Seconds now);
    void appendKind(StepKind kind, Seconds now);
    void append(Step step, Seconds now);

    const QSizeF m_canvas;
    QList<Step> m_steps;
    /// Where the last move went.
    QPointF m_lastAnchor;
    QPointF m_currentPos;
    Seconds m_lastMoveTime;
    /// When the last step was appended, or the first of the characters waiting was typed.
    Seconds m_lastEventTime;
    Seconds m_captureStart;
    /// Where the left button went down, while it is down.
    std::optional<QPointF> m_downPos;
    QString m_typeBuffer;
    QString m_lastAppName;
    bool m_capturing = false;
};

} // namespace velvane
