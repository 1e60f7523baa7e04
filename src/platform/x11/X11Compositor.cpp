#include "platform/x11/X11Compositor.h"

namespace velvane {

namespace {

int screenNumber(const X11Connection &connection)
{
    int number = 0;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
         screen.rem > 0 && screen.data->root != connection.root(); xcb_screen_next(&screen))
        ++number;
    return number;
}

} // namespace

bool hasCompositor(const X11Connection &connection)
{
    if (!connection.isOpen())
        return false;
    const xcb_atom_t selection =
        connection.atom("_NET_WM_CM_S" + QByteArray::number(screenNumber(connection)));
    const XReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), selection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

} // namespace velvane
