#pragma once

#include <QPainter>

namespace velvane {

/// While it lives, the painter paints in the pixels of its device, whatever the scale of the screen
/// and wherever the widget lies in its window: for pictures that must not be resampled.
class DevicePixels {
public:
    explicit DevicePixels(QPainter &painter);
    ~DevicePixels() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(DevicePixels)

    /// Device pixels per logical pixel.
    double scale() const { return m_scale; }
    /// A point in the coordinates that the painter had before, in device pixels.
    QPointF at(QPointF point) const { return m_toDevice.map(point); }
    /// A rectangle likewise, with its edges moved to the nearest pixel edges.
    QRect aligned(const QRectF &rect) const;
    /// The pixels that a rectangle touches.
    QRect touched(const QRectF &rect) const { return m_toDevice.mapRect(rect).toAlignedRect(); }

private:
    QPainter &m_painter;
    QTransform m_toDevice;
    double m_scale;
};

} // namespace velvane
