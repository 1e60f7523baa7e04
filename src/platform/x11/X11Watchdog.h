#pragma once

#include "platform/x11/watchdog/HeldInput.h"

#include <QString>

#include <xcb/xcb.h>

namespace velvane {

/// The process that undoes what posting left in the X server when this process is gone.
///
/// It is started with the first record, again if it has died, and ends with this object or this
/// process. Any one thread at a time.
class X11Watchdog {
public:
    /// `window` belongs to the connection that posts to `display`.
    X11Watchdog(QByteArray display, xcb_window_t window);
    ~X11Watchdog();
    X11Watchdog(const X11Watchdog &) = delete;
    X11Watchdog &operator=(const X11Watchdog &) = delete;

    /// Tells what is held. False when no watchdog can be had: then nothing may be pressed.
    bool tell(const HeldInput &held);

    /// Its program, beside the running one or in the libexec folder beside that one's; empty when
    /// it is missing.
    static QString program();

private:
    bool start();
    bool send(const HeldInput &held) const;
    void close();

    const QByteArray m_display;
    const xcb_window_t m_window;
    int m_socket = -1;
};

} // namespace velvane
