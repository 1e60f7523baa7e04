#include "capture/PictureFit.h"

#include <QPainter>

#include <utility>

namespace velvane {

Frame PictureFit::fitted(const Frame &frame)
{
    const QSize given = frame.image.size();
    Frame whole = frame;
    if (std::exchange(m_last, given) != given)
        whole.changed = frame.image.rect();
    if (given == m_size)
        return whole;
    const QSize beyond = given - m_size;
    const bool isCut = std::min(beyond.width(), beyond.height()) >= 0
                       && std::max(beyond.width(), beyond.height()) <= 1;
    if (!isCut)
        return scaled(whole);
    // Its own pixels, seen through a smaller window, and held for as long.
    const auto letGo = [](void *held) { delete static_cast<QImage *>(held); };
    const QImage part(frame.image.constBits(), m_size.width(), m_size.height(),
                      frame.image.bytesPerLine(), frame.image.format(), letGo,
                      new QImage(frame.image));
    return {part, whole.changed & part.rect(), frame.time};
}

Frame PictureFit::scaled(const Frame &frame)
{
    QRect place({}, frame.image.size().scaled(m_size, Qt::KeepAspectRatio));
    place.moveCenter(QRect({}, m_size).center());
    QRegion changed = frame.changed.isEmpty() ? QRegion() : QRegion(place);
    if (m_canvas.isNull())
        m_canvas = QImage(m_size, QImage::Format_RGB32);
    if (frame.changed == frame.image.rect()) {
        // Perhaps its shape is new.
        m_canvas.fill(Qt::black);
        changed = m_canvas.rect();
    }
    if (!changed.isEmpty()) {
        QPainter painter(&m_canvas);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, frame.image);
    }
    return {m_canvas, changed, frame.time};
}

} // namespace velvane
