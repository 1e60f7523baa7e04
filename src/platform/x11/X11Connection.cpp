#include "platform/x11/X11Connection.h"

#include <csignal>

namespace velvane {

namespace {

const xcb_screen_t *screenAt(const xcb_setup_t *setup, int number)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(setup);
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data : nullptr;
}

// What is written to a server that has gone, or that one has let go of meanwhile, is told as an
// error, and no signal ends the program. Who has asked for the signal goes on to get it.
void ignoreBrokenPipes()
{
    struct sigaction now {};
    sigaction(SIGPIPE, nullptr, &now);
    if (now.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, SIG_IGN);
}

} // namespace

X11Connection::X11Connection(const QByteArray &display)
{
    ignoreBrokenPipes();
    int number = 0;
    m_connection = xcb_connect(display.isEmpty() ? nullptr : display.constData(), &number);
    if (!isOpen())
        return;
    if (const xcb_screen_t *screen = screenAt(xcb_get_setup(m_connection), number)) {
        m_root = screen->root;
        m_rootSize = QSize(screen->width_in_pixels, screen->height_in_pixels);
    }
}

X11Connection::~X11Connection()
{
    xcb_disconnect(m_connection);
}

bool X11Connection::isOpen() const
{
    return xcb_connection_has_error(m_connection) == 0;
}

xcb_atom_t X11Connection::atom(const QByteArray &name) const
{
    const std::lock_guard lock(m_mutex);
    const auto known = m_atoms.constFind(name);
    if (known != m_atoms.constEnd())
        return *known;
    const auto asked =
        xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const XReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, asked, nullptr));
    if (!reply)
        return XCB_ATOM_NONE;
    return *m_atoms.insert(name, reply->atom);
}

bool X11Connection::hasExtension(const QByteArray &name) const
{
    const auto asked =
        xcb_query_extension(m_connection, static_cast<uint16_t>(name.size()), name.constData());
    const XReply<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(m_connection, asked, nullptr));
    return reply && reply->present;
}

void X11Connection::discardEvents() const
{
    while (XReply<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
    }
}

} // namespace velvane
