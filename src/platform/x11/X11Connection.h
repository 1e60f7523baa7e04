#pragma once

#include <QByteArray>
#include <QHash>
#include <QSize>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <mutex>

namespace velvane {

struct XFree {
    void operator()(void *reply) const { std::free(reply); }
};

/// A reply of the server; null when it refused, or has gone.
template <typename T>
using XReply = std::unique_ptr<T, XFree>;

/// A connection to the X server of our own, apart from the toolkit's.
///
/// Where there is no server, or after it has gone, every question is answered with nothing. Any
/// thread; each thread that waits for events wants a connection of its own.
class X11Connection {
public:
    /// Connects to a display such as ":1"; to that of the environment when empty.
    explicit X11Connection(const QByteArray &display = {});
    ~X11Connection();
    X11Connection(const X11Connection &) = delete;
    X11Connection &operator=(const X11Connection &) = delete;

    /// Is there a server, as far as is known?
    bool isOpen() const;

    xcb_connection_t *get() const { return m_connection; }
    /// The root window of the default screen; 0 without a server.
    xcb_window_t root() const { return m_root; }
    /// The root window's size in pixels at the time of connecting.
    QSize rootSize() const { return m_rootSize; }

    /// The atom of a name; 0 when the server has gone.
    xcb_atom_t atom(const QByteArray &name) const;

    bool hasExtension(const QByteArray &name) const;

    /// Throws away the events that have come. Whoever reads none calls this now and then: a change
    /// of the keyboard's map is told to every connection.
    void discardEvents() const;

private:
    xcb_connection_t *m_connection = nullptr;
    xcb_window_t m_root = XCB_NONE;
    QSize m_rootSize;
    mutable std::mutex m_mutex;
    mutable QHash<QByteArray, xcb_atom_t> m_atoms;
};

} // namespace velvane
