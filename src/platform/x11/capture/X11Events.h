#pragma once

#include "platform/x11/X11Connection.h"

#include <xcb/xcbext.h>

namespace velvane {

/// Reading the server's events.
namespace X11Events {

/// What the event is, whoever sent it; 0 for an error.
inline int type(const xcb_generic_event_t &event)
{
    return event.response_type & 0x7f;
}

/// The event as what its type says it is.
template <typename Event>
const Event &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const Event &>(event);
}

/// The type of an extension's first event; -1 without the extension.
inline int first(const X11Connection &connection, xcb_extension_t *extension)
{
    const xcb_query_extension_reply_t *reply = xcb_get_extension_data(connection.get(), extension);
    return reply && reply->present ? reply->first_event : -1;
}

} // namespace X11Events

} // namespace velvane
