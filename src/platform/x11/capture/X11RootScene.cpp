#include "platform/x11/capture/X11RootScene.h"

#include "platform/x11/capture/X11Events.h"
#include "platform/x11/capture/X11Rects.h"

#include <utility>

namespace velvane {

X11RootScene::X11RootScene(const X11Connection &connection)
    : m_connection(connection)
    , m_damageEvent(X11Events::first(connection, &xcb_damage_id))
    , m_damage(xcb_generate_id(connection.get()))
    , m_drawn(xcb_generate_id(connection.get()))
{
    xcb_connection_t *c = m_connection.get();
    xcb_damage_create(c, m_damage, m_connection.root(), XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_xfixes_create_region(c, m_drawn, 0, nullptr);
    const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(c, m_connection.root(), XCB_CW_EVENT_MASK, &events);
}

X11RootScene::~X11RootScene()
{
    xcb_damage_destroy(m_connection.get(), m_damage);
    xcb_xfixes_destroy_region(m_connection.get(), m_drawn);
}

void X11RootScene::setArea(const QRect &area)
{
    m_area = area;
    m_changes = area;
}

void X11RootScene::handle(const xcb_generic_event_t &event)
{
    if (X11Events::type(event) == m_damageEvent)
        m_isDrawn = true;
}

QRegion X11RootScene::update()
{
    QRegion changes = std::exchange(m_changes, {});
    if (std::exchange(m_isDrawn, false)) {
        xcb_connection_t *c = m_connection.get();
        xcb_damage_subtract(c, m_damage, XCB_NONE, m_drawn);
        const XReply<xcb_xfixes_fetch_region_reply_t> reply(
            xcb_xfixes_fetch_region_reply(c, xcb_xfixes_fetch_region(c, m_drawn), nullptr));
        if (reply)
            changes += X11Rects::region(xcb_xfixes_fetch_region_rectangles(reply.get()),
                                        xcb_xfixes_fetch_region_rectangles_length(reply.get()));
    }
    return (changes & m_area).translated(-m_area.topLeft());
}

} // namespace velvane
