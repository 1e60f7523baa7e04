#include "editor/CanvasPan.h"

#include "base/Geometry.h"
#include "editor/CanvasGeometry.h"

namespace velvane {

void CanvasPan::drag(QPointF translation)
{
    if (m_magnify && !isClick(translation))
        setOffset(m_dragStart + translation);
}

bool CanvasPan::wheel(QPointF delta)
{
    if (!m_magnify || !m_hovering)
        return false;
    setOffset(m_offset + delta);
    return true;
}

void CanvasPan::setOffset(QPointF offset)
{
    if (identical(offset, m_offset))
        return;
    m_offset = offset;
    Q_EMIT offsetChanged();
}

} // namespace velvane
