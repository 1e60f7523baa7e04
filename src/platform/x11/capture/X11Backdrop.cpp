#include "platform/x11/capture/X11Backdrop.h"

#include "platform/x11/X11Property.h"
#include "platform/x11/capture/X11Events.h"
#include "platform/x11/capture/X11Rects.h"

#include <xcb/composite.h>

namespace velvane {

namespace {

const QByteArray wallpaperProperty = "_XROOTPMAP_ID";

QSize sizeOf(const X11Connection &connection, xcb_drawable_t drawable, uint8_t depth)
{
    const XReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
        connection.get(), xcb_get_geometry(connection.get(), drawable), nullptr));
    if (!geometry || geometry->depth != depth)
        return {};
    return {geometry->width, geometry->height};
}

} // namespace

X11Backdrop::X11Backdrop(const X11Connection &connection, const X11Formats &formats,
                         xcb_pixmap_t wallpaper)
    : m_connection(connection)
    , m_formats(formats)
    , m_wallpaper(wallpaper)
    , m_property(connection.atom(wallpaperProperty))
{
    load();
}

X11Backdrop::~X11Backdrop()
{
    release();
}

void X11Backdrop::release()
{
    if (m_picture != XCB_NONE)
        xcb_render_free_picture(m_connection.get(), m_picture);
    if (m_probed != XCB_NONE)
        xcb_free_pixmap(m_connection.get(), m_probed);
    m_picture = XCB_NONE;
    m_probed = XCB_NONE;
}

bool X11Backdrop::handle(const xcb_generic_event_t &event)
{
    if (X11Events::type(event) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &property = X11Events::as<xcb_property_notify_event_t>(event);
    if (property.window != m_connection.root() || property.atom != m_property)
        return false;
    load();
    return true;
}

void X11Backdrop::load()
{
    release();
    xcb_pixmap_t pixmap = named();
    if (pixmap == XCB_NONE)
        pixmap = m_wallpaper;
    if (pixmap == XCB_NONE)
        pixmap = m_probed = probed();
    if (pixmap == XCB_NONE)
        return;
    m_picture = xcb_generate_id(m_connection.get());
    const uint32_t tiled = XCB_RENDER_REPEAT_NORMAL;
    xcb_render_create_picture(m_connection.get(), m_picture, pixmap,
                              m_formats.of(m_formats.rootVisual()), XCB_RENDER_CP_REPEAT, &tiled);
}

xcb_pixmap_t X11Backdrop::named() const
{
    const std::vector<uint32_t> value =
        X11Property(m_connection, m_connection.root(), wallpaperProperty).numbers();
    const bool usable =
        !value.empty() && !sizeOf(m_connection, value.front(), m_formats.rootDepth()).isEmpty();
    return usable ? value.front() : XCB_NONE;
}

// The server tells nobody a root window's background, but a window can be given its parent's, and
// the contents of a window can be kept. It is lowest, unmanaged, looks like what it covers, and
// lasts for a few requests.
xcb_pixmap_t X11Backdrop::probed() const
{
    xcb_connection_t *c = m_connection.get();
    const QSize size = sizeOf(m_connection, m_connection.root(), m_formats.rootDepth());
    if (size.isEmpty())
        return XCB_NONE;
    const xcb_window_t window = xcb_generate_id(c);
    const uint32_t values[] = {XCB_BACK_PIXMAP_PARENT_RELATIVE, 1};
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, m_connection.root(), 0, 0,
                      uint16_t(size.width()), uint16_t(size.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
    const uint32_t below = XCB_STACK_MODE_BELOW;
    xcb_configure_window(c, window, XCB_CONFIG_WINDOW_STACK_MODE, &below);
    xcb_composite_redirect_window(c, window, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    xcb_map_window(c, window);
    xcb_clear_area(c, 0, window, 0, 0, 0, 0);
    const xcb_pixmap_t pixmap = xcb_generate_id(c);
    const XReply<xcb_generic_error_t> error(
        xcb_request_check(c, xcb_composite_name_window_pixmap_checked(c, window, pixmap)));
    xcb_destroy_window(c, window);
    return error ? XCB_NONE : pixmap;
}

void X11Backdrop::paint(xcb_render_picture_t target, QPoint origin, const QRegion &region) const
{
    xcb_connection_t *c = m_connection.get();
    const QRect extent = region.boundingRect();
    const xcb_rectangle_t to = X11Rects::rect(extent.translated(-origin));
    const auto clip = X11Rects::list(region.translated(-origin));
    xcb_render_set_picture_clip_rectangles(c, target, 0, 0, uint32_t(clip.size()), clip.data());
    if (m_picture == XCB_NONE) {
        const xcb_render_color_t black{0, 0, 0, 0xffff};
        xcb_render_fill_rectangles(c, XCB_RENDER_PICT_OP_SRC, target, black, 1, &to);
        return;
    }
    xcb_render_composite(c, XCB_RENDER_PICT_OP_SRC, m_picture, XCB_NONE, target,
                         int16_t(extent.x()), int16_t(extent.y()), 0, 0, to.x, to.y, to.width,
                         to.height);
}

} // namespace velvane
