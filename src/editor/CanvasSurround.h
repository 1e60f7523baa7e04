#pragma once

#include <QImage>
#include <QRect>

class QPainter;

namespace velvane {

/// What lies around the canvas: the stage's colour, the canvas's soft shadow and its hairline.
class CanvasSurround {
public:
    /// Paints the view around the canvas, but not what lies under it. All in device pixels, the
    /// painter too; `scale` is device pixels per logical pixel. An empty canvas casts no shadow.
    void draw(QPainter &painter, const QRect &canvas, const QRect &view, double scale);

private:
    void drawShadow(QPainter &painter, const QRect &canvas, double scale);

    /// The shadow of a rectangle, cut so that its edges can be stretched.
    QImage m_patch;
    /// What the patch was made for.
    double m_scale = 0;
    float m_opacity = 0;
};

} // namespace velvane
