#pragma once

#include "editor/FieldEditing.h"
#include "editor/PreviewCanvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace velvane {

/// A canvas of 1920 × 1080 in a widget of 1000 × 640 with margins of 20: drawn at half its size,
/// at (20, 50). What a user does to it is sent as events.
struct CanvasStage {
    explicit CanvasStage(const QList<Step> &steps = {}, QSize size = {1000, 640})
    {
        project.setSteps(steps);
        project.setCanvasSize({1920, 1080});
        project.setStartPoint({960, 540});
        project.setUndoManager(&undo);
        canvas.resize(size);
    }

    void send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, canvas.mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    }
    void press(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, at, button, button);
    }
    void move(QPointF to) { send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton); }
    void hover(QPointF to) { send(QEvent::MouseMove, to, Qt::NoButton, Qt::NoButton); }
    void release(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void click(QPointF at)
    {
        press(at);
        release(at);
    }
    void drag(QPointF from, QPointF to)
    {
        press(from);
        move(to);
        release(to);
    }
    /// True when the canvas took the key.
    bool key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&canvas, &event);
        return event.isAccepted();
    }
    /// True when the canvas took the wheel's turn.
    bool wheel(QPoint pixels, QPoint angle = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPointF at(500, 320);
        QWheelEvent event(at, canvas.mapToGlobal(at), pixels, angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QApplication::sendEvent(&canvas, &event);
        return event.isAccepted();
    }
    void enter()
    {
        QEnterEvent event({500, 320}, {500, 320}, {500, 320});
        QApplication::sendEvent(&canvas, &event);
    }

    const Step &step(int index) const { return project.steps()[index]; }

    Project project;
    QUndoStack undo;
    Playback playback;
    PreviewTimeline timeline{project, playback};
    Selection selection{project};
    StatusLine status;
    FieldEditing fields{project};
    CanvasController controller{project, status, fields.gesture()};
    PreviewCanvas canvas{project, playback, timeline, selection, controller};
};

} // namespace velvane
