#pragma once

#include "platform/x11/X11Connection.h"

namespace velvane {

/// The wallpaper of a desktop whose compositor paints it itself and names it nowhere: what the
/// screen shows where no window lies, gathered before our first window shows and kept. Main thread.
class X11Harvest {
public:
    /// Gathers what there is now.
    explicit X11Harvest(const X11Connection &connection);
    ~X11Harvest();
    X11Harvest(const X11Harvest &) = delete;
    X11Harvest &operator=(const X11Harvest &) = delete;

    /// Adds what is free of windows now.
    void refresh();
    /// As large as the root window and as deep; none where it is not needed. Any connection may
    /// read it.
    xcb_pixmap_t pixmap() const { return m_pixmap; }

private:
    bool isNeeded() const;
    void create();
    void release();

    const X11Connection &m_connection;
    xcb_pixmap_t m_pixmap = XCB_NONE;
    xcb_gcontext_t m_context = XCB_NONE;
};

} // namespace velvane
