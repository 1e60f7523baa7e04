#pragma once

#include "platform/x11/capture/X11Formats.h"

#include <QRegion>
#include <QSize>

#include <memory>

namespace velvane {

/// What the server keeps of a redirected window's contents, whatever lies over the window. It
/// stays readable after the window has gone, and is outdated once the window is unmapped or
/// resized.
class X11WindowSurface {
public:
    /// `size` includes the window's border. Null when the window has gone, or shows nothing.
    static std::unique_ptr<X11WindowSurface> take(const X11Connection &connection,
                                                  const X11Formats &formats, xcb_window_t window,
                                                  QSize size, int border, xcb_visualid_t visual);
    ~X11WindowSurface();
    X11WindowSurface(const X11WindowSurface &) = delete;
    X11WindowSurface &operator=(const X11WindowSurface &) = delete;

    xcb_render_picture_t picture() const { return m_picture; }
    bool hasAlpha() const { return m_alpha; }
    /// What of the contents is drawn, relative to the window's outer top left.
    const QRegion &shape() const { return m_shape; }

private:
    X11WindowSurface(const X11Connection &connection, xcb_pixmap_t pixmap)
        : m_connection(connection)
        , m_pixmap(pixmap)
    {}

    const X11Connection &m_connection;
    const xcb_pixmap_t m_pixmap;
    xcb_render_picture_t m_picture = XCB_NONE;
    bool m_alpha = false;
    QRegion m_shape;
};

} // namespace velvane
