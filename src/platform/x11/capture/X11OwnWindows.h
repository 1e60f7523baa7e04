#pragma once

#include "platform/x11/X11Connection.h"

namespace velvane {

/// Tells this program's windows from those of others. A value; any thread.
///
/// Ours are the windows that the toolkit's connection made, menus and tooltips included, the frames
/// that a window manager put around them, and windows that name this process as their owner, such
/// as a file dialog that another toolkit shows for us; not so in a sandbox, whose numbers others
/// have too.
class X11OwnWindows {
public:
    /// Those of the toolkit that runs in this process; none where it uses no X server. Any thread,
    /// while there is an application object.
    static X11OwnWindows ofThisProcess();

    X11OwnWindows() = default;
    /// Those that a connection made, and those that name this process.
    explicit X11OwnWindows(xcb_connection_t *toolkit);

    /// May there be any?
    bool mayExist() const { return m_resourceMask != 0; }

    /// Did the toolkit make it? Asks nobody.
    bool isMadeByUs(xcb_window_t window) const;

    /// Is it ours, or a frame around one of ours? Asks the server.
    bool contains(const X11Connection &connection, xcb_window_t topLevel) const;

private:
    uint32_t m_resourceBase = 0;
    uint32_t m_resourceMask = 0;
};

} // namespace velvane
