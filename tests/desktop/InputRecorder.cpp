#include "InputRecorder.h"

#include "Eventually.h"

#include <xcb/record.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <cstring>

namespace velvane {

namespace {

// Categories of what the extension sends.
constexpr uint8_t fromServer = 0, startOfData = 4;

} // namespace

void PrintTo(const SeenEvent &event, std::ostream *out)
{
    *out << "{type " << event.type << ", detail " << event.detail << ", " << event.place.x() << ' '
         << event.place.y() << ", state " << event.state << '}';
}

InputRecorder::InputRecorder(const QByteArray &display)
    : m_control(display)
    , m_data(display)
    , m_context(xcb_generate_id(m_control.get()))
{
    xcb_record_range_t range{};
    range.device_events = {XCB_KEY_PRESS, XCB_MOTION_NOTIFY};
    const xcb_record_client_spec_t clients = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_create_context(m_control.get(), m_context, 0, 1, 1, &clients, &range);
    const XReply<xcb_get_input_focus_reply_t> created(
        xcb_get_input_focus_reply(m_control.get(), xcb_get_input_focus(m_control.get()), nullptr));
    m_request = xcb_record_enable_context(m_data.get(), m_context).sequence;
    xcb_flush(m_data.get());
    eventually([&] {
        poll();
        return m_started;
    });
}

InputRecorder::~InputRecorder()
{
    xcb_record_disable_context(m_control.get(), m_context);
    xcb_record_free_context(m_control.get(), m_context);
    xcb_flush(m_control.get());
}

std::vector<SeenEvent> InputRecorder::until(QPoint place)
{
    const auto marks = [&](const SeenEvent &event) {
        return event.type == XCB_MOTION_NOTIFY && event.place == place;
    };
    auto mark = m_seen.end();
    eventually([&] {
        poll();
        mark = std::ranges::find_if(m_seen, marks);
        return mark != m_seen.end();
    });
    std::vector<SeenEvent> before(m_seen.begin(), mark);
    m_seen.erase(m_seen.begin(), mark == m_seen.end() ? mark : mark + 1);
    return before;
}

void InputRecorder::sync()
{
    const XReply<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(m_control.get(), xcb_get_input_focus(m_control.get()), nullptr));
}

void InputRecorder::poll()
{
    // The server keeps what it has recorded until it has something to say to anybody.
    sync();
    void *data = nullptr;
    xcb_generic_error_t *error = nullptr;
    while (xcb_poll_for_reply(m_data.get(), m_request, &data, &error) != 0) {
        const XReply<xcb_record_enable_context_reply_t> reply(
            static_cast<xcb_record_enable_context_reply_t *>(data));
        const XReply<xcb_generic_error_t> fault(error);
        if (!reply)
            return;
        m_started = m_started || reply->category == startOfData;
        if (reply->category == fromServer)
            read(xcb_record_enable_context_data(reply.get()),
                 std::size_t(xcb_record_enable_context_data_length(reply.get())));
    }
}

void InputRecorder::read(const uint8_t *data, std::size_t size)
{
    for (; size >= sizeof(xcb_key_press_event_t); size -= sizeof(xcb_key_press_event_t)) {
        // Those of keys, buttons and motion are alike.
        xcb_key_press_event_t event;
        std::memcpy(&event, data, sizeof event);
        data += sizeof event;
        m_seen.push_back(
            {event.response_type & 0x7f, event.detail, {event.root_x, event.root_y}, event.state});
    }
}

} // namespace velvane
