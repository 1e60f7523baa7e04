#pragma once

#include "editor/CanvasPan.h"
#include "editor/OpenGesture.h"
#include "editor/StatusLine.h"

#include <QTimer>

namespace velvane {

/// What the canvas does to the demo: clicks, drags and nudges; and its magnifier. Main thread only.
class CanvasController : public QObject {
    Q_OBJECT
public:
    CanvasController(Project &project, StatusLine &status, OpenGesture &gesture,
                     QObject *parent = nullptr);

    /// A click on the canvas, in demo coordinates: moves the selected move's target there, else
    /// appends a waypoint.
    void handleCanvasClick(QPointF point);

    /// Moves the selected move's target by one unit, or ten. A run of nudges is one undo entry; it
    /// ends with a second of rest, another edit, a change of selection, or endNudges().
    /// False when no move is selected or the Qt::Key is no arrow.
    bool arrowNudge(int key, bool large);
    /// The canvas has lost the focus.
    void endNudges();
    /// The second of rest is over. Called by the timer, and by tests.
    void tick();

    /// The button goes down on a marker: selects its move. A drag is one undo entry, "Move Target".
    void beginMarkerDrag(const QUuid &id);
    /// The button goes down on the start point's handle: "Move Start".
    void beginStartDrag();
    /// The pointer is `translation`, in view points, from where the button went down; `scale` is
    /// CanvasGeometry's. The point is whole and stays on the canvas. Nothing moves before the
    /// gesture is more than a click.
    void drag(QPointF translation, double scale);
    void endDrag();
    /// Puts the point back; leaves no undo entry.
    void cancelDrag();
    bool isDragging() const { return m_drag.has_value(); }
    /// The move whose marker is dragged; none for the start point.
    std::optional<QUuid> draggedMove() const;

    bool magnify() const { return m_pan.magnify(); }
    void setMagnify(bool magnify);
    void toggleMagnify() { setMagnify(!magnify()); }
    CanvasPan &pan() { return m_pan; }

Q_SIGNALS:
    void magnifyChanged();
    void draggingChanged();

private:
    struct Drag {
        std::optional<QUuid> move;
        QPointF from;
        /// Has it gone further than a click?
        bool moved = false;
    };

    void setTarget(const QUuid &move, QPointF point);
    void setDragged(QPointF point);
    void beginDrag(const Drag &drag, const QString &name);
    void gestureCommitted();

    Project &m_project;
    StatusLine &m_status;
    OpenGesture &m_gesture;
    CanvasPan m_pan;
    std::optional<Drag> m_drag;
    QTimer m_rest;
};

} // namespace velvane
