#pragma once

#include "platform/x11/capture/X11Formats.h"

#include <QRegion>

namespace velvane {

/// What lies behind all windows: the picture that wallpaper programs name on the root window, else
/// the root window's own background.
class X11Backdrop {
public:
    /// `wallpaper` is used where no program names one; it stays its owner's. None for none.
    X11Backdrop(const X11Connection &connection, const X11Formats &formats, xcb_pixmap_t wallpaper);
    ~X11Backdrop();
    X11Backdrop(const X11Backdrop &) = delete;
    X11Backdrop &operator=(const X11Backdrop &) = delete;

    /// Does the event say that there is another picture? It is used from then on.
    bool handle(const xcb_generic_event_t &event);

    /// Paints what of the root window lies in `region`, in root-window pixels, into a picture whose
    /// top left shows the root window's pixel `origin`.
    void paint(xcb_render_picture_t target, QPoint origin, const QRegion &region) const;

private:
    void load();
    void release();
    xcb_pixmap_t named() const;
    xcb_pixmap_t probed() const;

    const X11Connection &m_connection;
    const X11Formats &m_formats;
    const xcb_pixmap_t m_wallpaper;
    const xcb_atom_t m_property;
    /// Ours to free; the named one belongs to the program that set it.
    xcb_pixmap_t m_probed = XCB_NONE;
    xcb_render_picture_t m_picture = XCB_NONE;
};

} // namespace velvane
