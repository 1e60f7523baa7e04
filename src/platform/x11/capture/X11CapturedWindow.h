#pragma once

#include "platform/x11/capture/X11WindowSurface.h"

#include <QRect>

#include <xcb/damage.h>
#include <xcb/xfixes.h>

namespace velvane {

/// A child of the root window, followed by a capture: where it lies, what it shows, and what of
/// that has been drawn anew. All in root-window pixels, its border included.
class X11CapturedWindow {
public:
    /// Null when it has gone.
    static std::unique_ptr<X11CapturedWindow> examine(const X11Connection &connection,
                                                      xcb_window_t id);
    ~X11CapturedWindow();
    X11CapturedWindow(const X11CapturedWindow &) = delete;
    X11CapturedWindow &operator=(const X11CapturedWindow &) = delete;

    xcb_window_t id() const { return m_id; }
    const QRect &frame() const { return m_frame; }
    /// Is it in the pictures: on the screen, and not ours?
    bool isShown() const { return m_mapped && m_hasContents && !m_ours; }

    /// `inner` is what the server calls its geometry: the border lies around it.
    void setGeometry(const QRect &inner, int border);
    void setMapped(bool mapped);
    /// Drawing into ours is not followed.
    void setOurs(bool ours);
    /// Its contents or its shape are to be taken anew.
    void dropSurface() { m_surface.reset(); }
    /// Null while it shows nothing.
    const X11WindowSurface *surface(const X11Formats &formats);
    /// What it shows, on the screen; its frame while that is unknown.
    QRegion area() const;
    /// Does it hide all below its area?
    bool isOpaque() const { return m_surface && !m_surface->hasAlpha(); }

    void markDrawn() { m_isDrawn = true; }
    bool isDrawn() const { return m_isDrawn; }
    /// Asks for what was drawn since the last time; takeDrawn() gets the answer. In between others
    /// may be asked, which costs one trip to the server for them all.
    void askDrawn();
    QRegion takeDrawn();

private:
    X11CapturedWindow(const X11Connection &connection, xcb_window_t id)
        : m_connection(connection)
        , m_id(id)
    {}

    const X11Connection &m_connection;
    const xcb_window_t m_id;
    QRect m_frame;
    int m_border = 0;
    xcb_visualid_t m_visual = 0;
    /// False for a window that only takes input; it is kept for the others' order.
    bool m_hasContents = true;
    bool m_mapped = false;
    bool m_ours = true;
    bool m_isDrawn = false;
    xcb_damage_damage_t m_damage = XCB_NONE;
    xcb_xfixes_region_t m_drawn = XCB_NONE;
    xcb_xfixes_fetch_region_cookie_t m_asked{};
    std::unique_ptr<X11WindowSurface> m_surface;
};

} // namespace velvane
