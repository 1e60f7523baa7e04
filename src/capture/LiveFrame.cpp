#include "capture/LiveFrame.h"

namespace velvane {

void LiveFrame::show(const Frame &frame)
{
    const bool isResized = QSizeF(frame.image.size()) != m_size;
    m_image = frame.image;
    m_size = frame.image.size();
    Q_EMIT imageChanged(isResized ? QRegion(frame.image.rect()) : frame.changed);
    if (isResized)
        Q_EMIT sizeChanged();
}

} // namespace velvane
