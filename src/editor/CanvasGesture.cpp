#include "editor/CanvasGesture.h"

#include <QWheelEvent>

#include <utility>

namespace velvane {

namespace {

// What one notch of a wheel, 120 units, pans; touchpads say themselves how far.
constexpr double notch = 60;

QPointF panDelta(const QWheelEvent &event)
{
    if (!event.pixelDelta().isNull())
        return event.pixelDelta();
    const QPointF delta = QPointF(event.angleDelta()) * (notch / 120);
    const bool sideways = event.modifiers().testFlag(Qt::ShiftModifier) && delta.x() == 0;
    return sideways ? QPointF(delta.y(), 0) : delta;
}

} // namespace

void CanvasGesture::press(QPointF at, const CanvasMarks &marks)
{
    m_pressed = at;
    m_hasMoved = false;
    if (const auto *marker = marks.markerAt(at)) {
        m_target = Target::marker;
        m_controller.beginMarkerDrag(marker->id);
    } else if (marks.startHandleAt(at)) {
        m_target = Target::start;
        m_controller.beginStartDrag();
    } else {
        m_target = Target::canvas;
        m_controller.pan().beginDrag();
    }
}

void CanvasGesture::move(QPointF to, double scale)
{
    const QPointF translation = to - m_pressed;
    m_hasMoved = m_hasMoved || !isClick(translation);
    if (m_target == Target::canvas)
        m_controller.pan().drag(translation);
    else if (isDragging())
        m_controller.drag(translation, scale);
}

bool CanvasGesture::release(QPointF at, double scale)
{
    move(at, scale);
    const Target target = std::exchange(m_target, Target::none);
    if (target == Target::marker || target == Target::start)
        m_controller.endDrag();
    return target == Target::canvas && isClick(at - m_pressed);
}

void CanvasGesture::cancel()
{
    if (isDragging())
        m_controller.cancelDrag();
    m_target = Target::none;
}

bool CanvasGesture::wheel(const QWheelEvent &event)
{
    return m_controller.pan().wheel(panDelta(event));
}

Qt::CursorShape CanvasGesture::cursorAt(QPointF at, const CanvasMarks &marks, bool onCanvas) const
{
    if (isDragging() || isPanning())
        return Qt::ClosedHandCursor;
    if (marks.markerAt(at) || marks.startHandleAt(at))
        return Qt::OpenHandCursor;
    return onCanvas ? Qt::CrossCursor : Qt::ArrowCursor;
}

} // namespace velvane
