#pragma once

#include "editor/CanvasController.h"
#include "editor/CanvasMarks.h"

class QWheelEvent;

namespace velvane {

/// What the mouse does on the canvas. The left button, from going down to coming up: a click, a
/// pan, or a drag of a marker or of the start point. The wheel: a pan. Points are the widget's
/// logical pixels.
class CanvasGesture {
public:
    explicit CanvasGesture(CanvasController &controller) : m_controller(controller) {}

    /// A marker is taken before the start point, and that before the canvas.
    void press(QPointF at, const CanvasMarks &marks);
    /// `scale` is CanvasGeometry's.
    void move(QPointF to, double scale);
    /// True for a click on the canvas, which the caller hands on.
    bool release(QPointF at, double scale);
    /// Puts back what is dragged.
    void cancel();

    /// Pans with the wheel; false when the wheel's turn is not for the canvas.
    bool wheel(const QWheelEvent &event);
    /// The pointer's shape, which tells what a press at this point would do, or what is being done.
    Qt::CursorShape cursorAt(QPointF at, const CanvasMarks &marks, bool onCanvas) const;

    bool isDragging() const { return m_target == Target::marker || m_target == Target::start; }
    bool isPanning() const { return m_target == Target::canvas && m_hasMoved; }

private:
    enum class Target { none, canvas, marker, start };

    CanvasController &m_controller;
    Target m_target = Target::none;
    QPointF m_pressed;
    bool m_hasMoved = false;
};

} // namespace velvane
