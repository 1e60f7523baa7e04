#include "platform/x11/capture/X11CapturedWindow.h"

#include "platform/x11/capture/X11Rects.h"

#include <xcb/shape.h>

namespace velvane {

std::unique_ptr<X11CapturedWindow> X11CapturedWindow::examine(const X11Connection &connection,
                                                              xcb_window_t id)
{
    xcb_connection_t *c = connection.get();
    const auto askedAttributes = xcb_get_window_attributes(c, id);
    const auto askedGeometry = xcb_get_geometry(c, id);
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(c, askedAttributes, nullptr));
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(c, askedGeometry, nullptr));
    if (!attributes || !geometry)
        return nullptr;
    std::unique_ptr<X11CapturedWindow> window(new X11CapturedWindow(connection, id));
    window->m_hasContents = attributes->_class != XCB_WINDOW_CLASS_INPUT_ONLY;
    window->m_visual = attributes->visual;
    window->m_mapped = attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    window->setGeometry(QRect(geometry->x, geometry->y, geometry->width, geometry->height),
                        geometry->border_width);
    xcb_shape_select_input(c, id, 1);
    return window;
}

X11CapturedWindow::~X11CapturedWindow()
{
    setOurs(true);
}

void X11CapturedWindow::setGeometry(const QRect &inner, int border)
{
    const QRect frame(inner.topLeft(), inner.size() + QSize(2 * border, 2 * border));
    if (frame.size() != m_frame.size() || border != m_border)
        dropSurface();
    m_frame = frame;
    m_border = border;
}

void X11CapturedWindow::setMapped(bool mapped)
{
    m_mapped = mapped;
    dropSurface();
}

void X11CapturedWindow::setOurs(bool ours)
{
    if (ours == m_ours || !m_hasContents)
        return;
    m_ours = ours;
    xcb_connection_t *c = m_connection.get();
    if (ours) {
        xcb_damage_destroy(c, m_damage);
        xcb_xfixes_destroy_region(c, m_drawn);
        m_isDrawn = false;
        dropSurface();
        return;
    }
    m_damage = xcb_generate_id(c);
    xcb_damage_create(c, m_damage, m_id, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    m_drawn = xcb_generate_id(c);
    xcb_xfixes_create_region(c, m_drawn, 0, nullptr);
}

const X11WindowSurface *X11CapturedWindow::surface(const X11Formats &formats)
{
    if (!isShown())
        return nullptr;
    if (!m_surface)
        m_surface =
            X11WindowSurface::take(m_connection, formats, m_id, m_frame.size(), m_border, m_visual);
    return m_surface.get();
}

QRegion X11CapturedWindow::area() const
{
    return m_surface ? m_surface->shape().translated(m_frame.topLeft()) : QRegion(m_frame);
}

void X11CapturedWindow::askDrawn()
{
    xcb_damage_subtract(m_connection.get(), m_damage, XCB_NONE, m_drawn);
    m_asked = xcb_xfixes_fetch_region(m_connection.get(), m_drawn);
    m_isDrawn = false;
}

QRegion X11CapturedWindow::takeDrawn()
{
    const XReply<xcb_xfixes_fetch_region_reply_t> reply(
        xcb_xfixes_fetch_region_reply(m_connection.get(), m_asked, nullptr));
    if (!reply)
        return {};
    const QRegion drawn = X11Rects::region(xcb_xfixes_fetch_region_rectangles(reply.get()),
                                           xcb_xfixes_fetch_region_rectangles_length(reply.get()));
    return drawn.translated(m_frame.topLeft() + QPoint(m_border, m_border)) & m_frame;
}

} // namespace velvane
