#pragma once

#include "editor/CanvasGeometry.h"
#include "editor/MoveGroup.h"

#include <QCoreApplication>
#include <QPolygonF>

namespace velvane {

/// Where the path's marks lie in a view: markers, the chip above the first, stacks of actions.
///
/// All in the view's logical pixels, and of the same size at any zoom. Marks that are not in the
/// view are left out, but for the path; where hundreds of markers crowd, so are the stacks that
/// would hide other marks, but for the active marker's. Needs a QGuiApplication, to measure texts.
struct CanvasMarks {
    Q_DECLARE_TR_FUNCTIONS(velvane::CanvasMarks)
public:
    struct Marker {
        QUuid id;
        QString number;
        bool active = false;
        QPointF centre;

        double radius() const { return active ? 14 : 12; }
        QRectF rect() const;
    };
    /// A text on a pill.
    struct Capsule {
        QRectF rect;
        QString text;
        /// Is it of the active marker's stack?
        bool active = false;
    };

    /// `view` is what can be seen, in the geometry's view points; `selected` the active marker's
    /// move.
    static CanvasMarks of(const QList<MoveGroup> &groups, std::optional<QUuid> selected,
                          const CanvasGeometry &geometry, const QRectF &view);

    /// The marker under a point, the topmost if there are several.
    const Marker *markerAt(QPointF point) const;
    /// Is the start point's handle under a point?
    bool startHandleAt(QPointF point) const;

    void translate(QPointF by);

    QPolygonF path;
    /// Where the cursor starts; absent while that cannot be dragged.
    std::optional<QPointF> startHandle;
    std::optional<Capsule> startChip;
    /// Back to front: the active one last.
    QList<Marker> markers;
    /// From the top of the view downwards, stack by stack.
    QList<Capsule> actions;
};

} // namespace velvane
