#include "platform/x11/capture/X11PointerLayer.h"

#include "platform/x11/capture/X11Events.h"

#include <QPainter>

#include <xcb/xfixes.h>

#include <utility>

namespace velvane {

X11PointerLayer::X11PointerLayer(const X11Connection &connection)
    : m_connection(connection)
    , m_cursorEvent(X11Events::first(connection, &xcb_xfixes_id) + XCB_XFIXES_CURSOR_NOTIFY)
{
    xcb_xfixes_select_cursor_input(m_connection.get(), m_connection.root(),
                                   XCB_XFIXES_CURSOR_NOTIFY_MASK_DISPLAY_CURSOR);
}

void X11PointerLayer::handle(const xcb_generic_event_t &event)
{
    if (X11Events::type(event) == m_cursorEvent)
        m_isOutdated = true;
}

// The server could tell of each movement, which is more often than there are pictures; one question
// for each picture costs less.
bool X11PointerLayer::follow()
{
    xcb_connection_t *c = m_connection.get();
    const XReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(c, xcb_query_pointer(c, m_connection.root()), nullptr));
    if (!reply)
        return false;
    const QPoint place(reply->root_x, reply->root_y);
    const bool differs = m_isOutdated || place != m_place;
    if (std::exchange(m_isOutdated, false))
        loadImage();
    m_place = place;
    return differs;
}

void X11PointerLayer::loadImage()
{
    xcb_connection_t *c = m_connection.get();
    const XReply<xcb_xfixes_get_cursor_image_reply_t> reply(
        xcb_xfixes_get_cursor_image_reply(c, xcb_xfixes_get_cursor_image(c), nullptr));
    if (!reply)
        return;
    const auto *pixels =
        reinterpret_cast<const uchar *>(xcb_xfixes_get_cursor_image_cursor_image(reply.get()));
    m_image =
        QImage(pixels, reply->width, reply->height, QImage::Format_ARGB32_Premultiplied).copy();
    m_hotSpot = QPoint(reply->xhot, reply->yhot);
}

QRegion X11PointerLayer::lift(QImage &picture)
{
    if (m_covered.isNull())
        return {};
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(m_coveredAt, m_covered);
    const QRect put(m_coveredAt, m_covered.size());
    m_covered = {};
    return put;
}

QRegion X11PointerLayer::drop(QImage &picture, QPoint origin)
{
    const QPoint at = m_place - m_hotSpot - origin;
    const QRect area = QRect(at, m_image.size()) & picture.rect();
    if (area.isEmpty())
        return {};
    m_covered = picture.copy(area);
    m_coveredAt = area.topLeft();
    QPainter(&picture).drawImage(at, m_image);
    return area;
}

} // namespace velvane
