// Prints what happens to mouse and keyboard of a display, as the server tells it through RECORD:
// one line each of milliseconds, kind, button or key code, x, y and the state before, until the
// server or a signal ends it. Shares nothing with the program under test.
//
// usage: listener [FILE]      (standard output without a file)

#include <xcb/record.h>
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char *name(int type)
{
    switch (type) {
    case XCB_KEY_PRESS:
        return "key-down";
    case XCB_KEY_RELEASE:
        return "key-up";
    case XCB_BUTTON_PRESS:
        return "button-down";
    case XCB_BUTTON_RELEASE:
        return "button-up";
    case XCB_MOTION_NOTIFY:
        return "motion";
    default:
        return nullptr;
    }
}

// All device events have the same layout.
void print(const xcb_key_press_event_t &event, FILE *out)
{
    if (const char *kind = name(event.response_type & 0x7f))
        std::fprintf(out, "%u %s %d %d %d %d\n", event.time, kind, event.detail, event.root_x,
                     event.root_y, event.state);
}

xcb_record_context_t createContext(xcb_connection_t *connection)
{
    const xcb_record_context_t context = xcb_generate_id(connection);
    xcb_record_range_t range = {};
    range.device_events = {XCB_KEY_PRESS, XCB_MOTION_NOTIFY};
    const xcb_record_client_spec_t clients = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_create_context(connection, context, 0, 1, 1, &clients, &range);
    // The other connection must find it.
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return context;
}

} // namespace

int main(int argc, char **argv)
{
    FILE *out = argc > 1 ? std::fopen(argv[1], "w") : stdout;
    xcb_connection_t *control = xcb_connect(nullptr, nullptr);
    xcb_connection_t *data = xcb_connect(nullptr, nullptr);
    if (!out || xcb_connection_has_error(control) || xcb_connection_has_error(data))
        return 1;
    const auto listening = xcb_record_enable_context(data, createContext(control));
    while (auto *reply = xcb_record_enable_context_reply(data, listening, nullptr)) {
        // The first reply, of another category, says that listening has begun.
        if (reply->category != 0)
            std::fprintf(out, "ready\n");
        const uint8_t *bytes = xcb_record_enable_context_data(reply);
        const int length = xcb_record_enable_context_data_length(reply);
        for (int at = 0; reply->category == 0 && at + 32 <= length; at += 32) {
            xcb_key_press_event_t event;
            std::memcpy(&event, bytes + at, sizeof event);
            print(event, out);
        }
        std::fflush(out);
        std::free(reply);
    }
    return 0;
}
