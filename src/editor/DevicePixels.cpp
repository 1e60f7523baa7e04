#include "editor/DevicePixels.h"

namespace velvane {

DevicePixels::DevicePixels(QPainter &painter)
    : m_painter(painter)
    , m_toDevice(painter.deviceTransform())
    , m_scale(m_toDevice.m11())
{
    painter.save();
    // deviceTransform() is the world transform and then the device's own; undo the latter.
    painter.setWorldTransform(m_toDevice.inverted() * painter.worldTransform());
}

QRect DevicePixels::aligned(const QRectF &rect) const
{
    const QRectF mapped = m_toDevice.mapRect(rect);
    const QPoint topLeft(qRound(mapped.left()), qRound(mapped.top()));
    return {topLeft,
            QSize(qRound(mapped.right()) - topLeft.x(), qRound(mapped.bottom()) - topLeft.y())};
}

} // namespace velvane
