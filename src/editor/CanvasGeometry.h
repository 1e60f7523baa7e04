#pragma once

#include "model/Project.h"

#include <QRectF>

namespace velvane {

/// How the canvas lies in a view, and the way between both.
///
/// Demo points are canvas coordinates. View points are logical pixels from the top left of the area
/// that the canvas is fitted into (the stage less its margins); the widget translates.
class CanvasGeometry {
public:
    /// The magnifier's factor over the fitted size.
    static constexpr double magnification = 4;

    CanvasGeometry() = default;
    /// Fitted and centred. An empty canvas gives an empty rectangle.
    CanvasGeometry(QSizeF canvas, QSizeF view);
    /// Magnified: `focus`, a demo point, at the view's centre, moved by `offset` in view points.
    CanvasGeometry(QSizeF canvas, QSizeF view, QPointF focus, QPointF offset);

    /// Where the canvas is drawn, in view points.
    QRectF drawRect() const { return {m_origin, m_canvas * m_scale}; }
    /// View points per demo unit; 0 for an empty canvas.
    double scale() const { return m_scale; }

    QPointF toView(QPointF demo) const { return m_origin + demo * m_scale; }
    /// The origin when the canvas is empty.
    QPointF toDemo(QPointF view) const;
    /// Does the demo point lie on the canvas, its edges included?
    bool contains(QPointF demo) const;

private:
    QSizeF m_canvas;
    double m_scale = 0;
    QPointF m_origin;
};

/// The demo point that the magnifier centres: the selected move's target, else the canvas's centre.
QPointF focusPoint(const Project &project);

/// The demo point rounded to whole units and kept on the canvas.
QPointF wholeAndInside(QPointF demo, QSizeF canvas);

/// Did a gesture with this translation, in view points, stay a click (no more than 4 in all)?
bool isClick(QPointF translation);

} // namespace velvane
