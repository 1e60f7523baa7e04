#include "platform/x11/capture/X11WindowSurface.h"

#include "platform/x11/X11Property.h"
#include "platform/x11/capture/X11Rects.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

#include <span>

namespace velvane {

namespace {

constexpr int deepestClient = 2;

// The window manager marks its client, which is the window itself or inside its frame.
xcb_window_t clientOf(const X11Connection &connection, xcb_window_t window,
                      int depth = deepestClient)
{
    if (!X11Property(connection, window, "WM_STATE").numbers().empty())
        return window;
    if (depth == 0)
        return XCB_NONE;
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), window), nullptr));
    if (!tree)
        return XCB_NONE;
    const std::span children(xcb_query_tree_children(tree.get()),
                             std::size_t(xcb_query_tree_children_length(tree.get())));
    for (const xcb_window_t child : children) {
        if (const xcb_window_t client = clientOf(connection, child, depth - 1))
            return client;
    }
    return XCB_NONE;
}

// A frame may be larger than what it shows: around it some managers keep a margin that takes clicks
// and is black in the contents.
QRect decoratedArea(const X11Connection &connection, xcb_window_t window, QSize size, int border)
{
    const QRect whole(QPoint(0, 0), size);
    const xcb_window_t client = clientOf(connection, window);
    if (client == XCB_NONE || client == window)
        return whole;
    xcb_connection_t *c = connection.get();
    const auto place = xcb_translate_coordinates(c, client, window, 0, 0);
    const auto geometry = xcb_get_geometry(c, client);
    const std::vector<uint32_t> extents =
        X11Property(connection, client, "_NET_FRAME_EXTENTS").numbers();
    const XReply<xcb_translate_coordinates_reply_t> at(
        xcb_translate_coordinates_reply(c, place, nullptr));
    const XReply<xcb_get_geometry_reply_t> inner(xcb_get_geometry_reply(c, geometry, nullptr));
    if (!at || !inner || extents.size() < 4)
        return whole;
    const QRect clientArea(at->dst_x + border, at->dst_y + border, inner->width, inner->height);
    return clientArea.adjusted(-int(extents[0]), -int(extents[2]), int(extents[1]), int(extents[3]))
           & whole;
}

QRegion shapeOf(const X11Connection &connection, xcb_window_t window, QSize size, int border)
{
    const XReply<xcb_shape_get_rectangles_reply_t> reply(xcb_shape_get_rectangles_reply(
        connection.get(), xcb_shape_get_rectangles(connection.get(), window, XCB_SHAPE_SK_BOUNDING),
        nullptr));
    const QRect shown = decoratedArea(connection, window, size, border);
    if (!reply)
        return shown;
    const QRegion shape = X11Rects::region(xcb_shape_get_rectangles_rectangles(reply.get()),
                                           xcb_shape_get_rectangles_rectangles_length(reply.get()));
    return shape.translated(border, border) & shown;
}

} // namespace

std::unique_ptr<X11WindowSurface> X11WindowSurface::take(const X11Connection &connection,
                                                         const X11Formats &formats,
                                                         xcb_window_t window, QSize size,
                                                         int border, xcb_visualid_t visual)
{
    xcb_connection_t *c = connection.get();
    const xcb_render_pictformat_t format = formats.of(visual);
    if (format == 0)
        return nullptr;
    const xcb_pixmap_t pixmap = xcb_generate_id(c);
    // It may have been unmapped meanwhile.
    if (const XReply<xcb_generic_error_t> error(
            xcb_request_check(c, xcb_composite_name_window_pixmap_checked(c, window, pixmap)));
        error || !connection.isOpen())
        return nullptr;
    std::unique_ptr<X11WindowSurface> surface(new X11WindowSurface(connection, pixmap));
    surface->m_picture = xcb_generate_id(c);
    xcb_render_create_picture(c, surface->m_picture, pixmap, format, 0, nullptr);
    surface->m_alpha = formats.hasAlpha(visual);
    surface->m_shape = shapeOf(connection, window, size, border);
    return surface;
}

X11WindowSurface::~X11WindowSurface()
{
    if (m_picture != XCB_NONE)
        xcb_render_free_picture(m_connection.get(), m_picture);
    xcb_free_pixmap(m_connection.get(), m_pixmap);
}

} // namespace velvane
