#include "platform/x11/X11Property.h"

#include <utility>

namespace velvane {

X11Property::X11Property(const X11Connection &connection, xcb_window_t window,
                         const QByteArray &name, uint32_t longest)
    : m_connection(connection)
    , m_asked(xcb_get_property(connection.get(), 0, window, connection.atom(name),
                               XCB_GET_PROPERTY_TYPE_ANY, 0, longest / 4))
{}

X11Property::X11Property(X11Property &&other) noexcept
    : m_connection(other.m_connection)
    , m_asked(other.m_asked)
    , m_pending(std::exchange(other.m_pending, false))
    , m_reply(std::move(other.m_reply))
{}

X11Property::~X11Property()
{
    if (m_pending)
        xcb_discard_reply(m_connection.get(), m_asked.sequence);
}

void X11Property::fetch()
{
    if (std::exchange(m_pending, false))
        m_reply.reset(xcb_get_property_reply(m_connection.get(), m_asked, nullptr));
}

QByteArray X11Property::bytes()
{
    fetch();
    if (!m_reply || m_reply->format != 8)
        return {};
    return QByteArray(static_cast<const char *>(xcb_get_property_value(m_reply.get())),
                      xcb_get_property_value_length(m_reply.get()));
}

std::vector<uint32_t> X11Property::numbers()
{
    fetch();
    if (!m_reply || m_reply->format != 32)
        return {};
    const auto *first = static_cast<const uint32_t *>(xcb_get_property_value(m_reply.get()));
    const int count = xcb_get_property_value_length(m_reply.get()) / 4;
    return {first, first + count};
}

QString X11Property::text()
{
    const QByteArray all = bytes();
    return QString::fromUtf8(all.constData(), qstrnlen(all.constData(), all.size()));
}

QStringList X11Property::texts()
{
    QStringList parts;
    for (const QByteArray &part : bytes().split('\0'))
        parts << QString::fromLatin1(part);
    return parts;
}

} // namespace velvane
