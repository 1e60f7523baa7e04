#include "Settled.h"

#include "Eventually.h"
#include "platform/x11/X11Property.h"
#include "platform/x11/X11Windows.h"

namespace velvane {

namespace {

// Asks the window manager something of no consequence; it answers when its turn comes.
void askAndWait(X11Connection &connection)
{
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 10,
                      10, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = connection.atom("_NET_REQUEST_FRAME_EXTENTS");
    xcb_send_event(connection.get(), 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(connection.get());
    eventually(
        [&] { return !X11Property(connection, window, "_NET_FRAME_EXTENTS").numbers().empty(); });
    xcb_destroy_window(connection.get(), window);
}

// All that a test asks about windows.
QStringList state(X11Connection &connection)
{
    QStringList lines;
    for (const char *list : {"_NET_CLIENT_LIST_STACKING", "_NET_ACTIVE_WINDOW"}) {
        for (const uint32_t id : X11Property(connection, connection.root(), list).numbers())
            lines << QString::number(id);
    }
    for (const X11Window &window : managedWindows(connection))
        lines << QStringLiteral("%1 %2 %3 %4,%5 %6x%7")
                     .arg(window.id)
                     .arg(window.hidden)
                     .arg(window.onScreen)
                     .arg(window.frame.x())
                     .arg(window.frame.y())
                     .arg(window.frame.width())
                     .arg(window.frame.height());
    return lines;
}

} // namespace

void settled(X11Connection &connection)
{
    // Some window managers put their lists right only when they have nothing else to do.
    QStringList last;
    int same = 0;
    eventually([&] {
        askAndWait(connection);
        const QStringList now = state(connection);
        same = now == last ? same + 1 : 0;
        last = now;
        return same >= 3;
    });
}

} // namespace velvane
