#include "platform/x11/capture/X11Harvest.h"

#include "platform/x11/X11Compositor.h"
#include "platform/x11/X11Property.h"
#include "platform/x11/capture/X11Formats.h"
#include "platform/x11/capture/X11Rects.h"

#include <span>

namespace velvane {

namespace {

// As far as a compositor's shadows reach around a window.
constexpr int shadow = 48;
constexpr uint32_t dusk = 0xff303030;

// Its frame and shadow when it is on the screen.
QRect covered(const X11Connection &connection, xcb_window_t window)
{
    xcb_connection_t *c = connection.get();
    const auto askedAttributes = xcb_get_window_attributes(c, window);
    const auto askedGeometry = xcb_get_geometry(c, window);
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(c, askedAttributes, nullptr));
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(c, askedGeometry, nullptr));
    if (!attributes || !geometry || attributes->map_state != XCB_MAP_STATE_VIEWABLE
        || attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY)
        return {};
    return QRect(geometry->x, geometry->y, geometry->width + 2 * geometry->border_width,
                 geometry->height + 2 * geometry->border_width)
        .adjusted(-shadow, -shadow, shadow, shadow);
}

QRegion freeArea(const X11Connection &connection)
{
    QRegion area(QRect(QPoint(0, 0), connection.rootSize()));
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        connection.get(), xcb_query_tree(connection.get(), connection.root()), nullptr));
    if (!tree)
        return {};
    const std::span children(xcb_query_tree_children(tree.get()),
                             std::size_t(xcb_query_tree_children_length(tree.get())));
    for (const xcb_window_t child : children)
        area -= covered(connection, child);
    return area;
}

} // namespace

X11Harvest::X11Harvest(const X11Connection &connection) : m_connection(connection)
{
    refresh();
}

X11Harvest::~X11Harvest()
{
    release();
}

bool X11Harvest::isNeeded() const
{
    return m_connection.isOpen() && hasCompositor(m_connection)
           && X11Property(m_connection, m_connection.root(), "_XROOTPMAP_ID").numbers().empty();
}

void X11Harvest::refresh()
{
    if (!isNeeded())
        return release();
    if (m_pixmap == XCB_NONE)
        create();
    const auto clip = X11Rects::list(freeArea(m_connection));
    xcb_connection_t *c = m_connection.get();
    xcb_set_clip_rectangles(c, XCB_CLIP_ORDERING_UNSORTED, m_context, 0, 0, uint32_t(clip.size()),
                            clip.data());
    const QSize size = m_connection.rootSize();
    xcb_copy_area(c, m_connection.root(), m_pixmap, m_context, 0, 0, 0, 0, uint16_t(size.width()),
                  uint16_t(size.height()));
    xcb_flush(c);
}

void X11Harvest::create()
{
    xcb_connection_t *c = m_connection.get();
    const QSize size = m_connection.rootSize();
    m_pixmap = xcb_generate_id(c);
    xcb_create_pixmap(c, X11Formats(m_connection).rootDepth(), m_pixmap, m_connection.root(),
                      uint16_t(size.width()), uint16_t(size.height()));
    m_context = xcb_generate_id(c);
    const uint32_t values[] = {dusk, XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS};
    xcb_create_gc(c, m_context, m_pixmap, XCB_GC_FOREGROUND | XCB_GC_SUBWINDOW_MODE, values);
    const xcb_rectangle_t all{0, 0, uint16_t(size.width()), uint16_t(size.height())};
    xcb_poly_fill_rectangle(c, m_pixmap, m_context, 1, &all);
}

void X11Harvest::release()
{
    if (m_pixmap == XCB_NONE)
        return;
    xcb_free_gc(m_connection.get(), m_context);
    xcb_free_pixmap(m_connection.get(), m_pixmap);
    m_pixmap = XCB_NONE;
}

} // namespace velvane
