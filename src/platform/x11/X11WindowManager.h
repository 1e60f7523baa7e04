#pragma once

#include "platform/x11/X11Windows.h"

#include <QPoint>

#include <QStringList>

#include <initializer_list>

namespace velvane {

/// What the session's window manager is asked to do, in the way of the Extended Window Manager
/// Hints. Requests are sent and not waited for; one about a window that is gone has no effect.
/// Any thread.
class X11WindowManager {
public:
    using Windows = std::vector<xcb_window_t>;

    /// `inWaylandSession`: the server is a guest in a Wayland session.
    X11WindowManager(const X11Connection &connection, bool inWaylandSession);

    /// Why windows cannot be controlled here; empty when they can.
    QString missing() const;

    /// The running window manager's name; empty when there is none that follows the hints, its
    /// program's class when it gives no name.
    QString name() const;

    /// Those of the requests below that it does not list among what it can do.
    QStringList lacking() const;

    /// Does a program draw the windows together, which makes shadows and transparency?
    bool isComposited() const;

    /// The window that has the keyboard; XCB_NONE when none has.
    xcb_window_t activeWindow() const;

    /// Minimizes windows.
    void minimize(const Windows &windows) const;

    /// Brings minimized windows back where they were, the lowest first, behind `active`, which has
    /// the keyboard then; XCB_NONE for none.
    void restore(const std::vector<X11Window> &windows, xcb_window_t active) const;

    /// Brings windows in front of all others, shown, in the order given, the lowest first, and
    /// gives the last of those that a user switches to the keyboard, on whatever desktop it is.
    void raise(const std::vector<X11Window> &windows) const;

    /// The managed windows, from the lowest to the topmost.
    std::vector<X11Window> stacked() const;

    /// Gives a window the keyboard; shows it if it is minimized.
    void giveKeyboard(xcb_window_t window) const;

    /// Moves the top left of a window's frame to a point in root pixels.
    void move(xcb_window_t window, QPoint topLeft) const;

private:
    xcb_window_t checkWindow() const;
    Windows stacking() const;
    bool supports(const QByteArray &hint) const;
    void ask(xcb_window_t window, const QByteArray &message,
             std::initializer_list<uint32_t> data) const;
    void configure(xcb_window_t window, uint16_t mask, const std::vector<uint32_t> &values) const;

    const X11Connection &m_connection;
    const bool m_inWaylandSession;
};

} // namespace velvane
