#include "platform/x11/X11Xkb.h"

#include "platform/x11/XcbXkb.h"

namespace velvane {

void useXkb(const X11Connection &connection)
{
    const XReply<xcb_xkb_use_extension_reply_t> used(xcb_xkb_use_extension_reply(
        connection.get(),
        xcb_xkb_use_extension(connection.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
}

uint8_t lockedModifiers(const X11Connection &connection)
{
    const XReply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        connection.get(), xcb_xkb_get_state(connection.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state ? state->lockedMods : uint8_t(0);
}

void lockModifiers(const X11Connection &connection, uint8_t modifiers, uint8_t locked)
{
    xcb_xkb_latch_lock_state(connection.get(), XCB_XKB_ID_USE_CORE_KBD, modifiers, locked, 0, 0, 0,
                             0, 0);
}

} // namespace velvane
