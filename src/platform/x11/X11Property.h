#pragma once

#include "platform/x11/X11Connection.h"

#include <QList>
#include <QStringList>

#include <vector>

namespace velvane {

/// A window's property, asked for at once and fetched when needed: asking for many before fetching
/// the first costs one trip to the server.
class X11Property {
public:
    /// `longest` is the most that is read, in bytes; what lies beyond is cut off.
    X11Property(const X11Connection &connection, xcb_window_t window, const QByteArray &name,
                uint32_t longest = 16 * 1024);
    ~X11Property();
    X11Property(X11Property &&other) noexcept;
    X11Property(const X11Property &) = delete;
    X11Property &operator=(const X11Property &) = delete;

    /// 8-bit data; empty when absent or of another format.
    QByteArray bytes();
    /// 32-bit data; empty when absent or of another format.
    std::vector<uint32_t> numbers();

    /// `bytes` as UTF-8 up to the first NUL.
    QString text();
    /// `bytes` as Latin-1 texts parted by NUL.
    QStringList texts();

private:
    void fetch();

    const X11Connection &m_connection;
    xcb_get_property_cookie_t m_asked{};
    bool m_pending = true;
    XReply<xcb_get_property_reply_t> m_reply;
};

} // namespace velvane
