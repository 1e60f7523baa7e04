#include "platform/x11/X11RecordStream.h"

#include <xcb/record.h>
#include <xcb/xcbext.h>

#include <cstring>

namespace velvane {

namespace {

// The categories of a reply (Record Extension Protocol, section 3.2).
constexpr uint8_t fromServer = 0;
constexpr uint8_t startOfData = 4;
constexpr uint8_t endOfData = 5;

using Reply = XReply<xcb_record_enable_context_reply_t>;

X11HeardEvent parsed(const uint8_t *bytes)
{
    // Events of keys, buttons and motion are laid out alike.
    xcb_key_press_event_t event;
    std::memcpy(&event, bytes, sizeof event);
    constexpr uint8_t sentFlag = 0x80;
    const auto type = static_cast<uint8_t>(event.response_type & ~sentFlag);
    return {type, event.detail, event.state, event.root_x, event.root_y, event.time};
}

void add(const xcb_record_enable_context_reply_t &reply, std::vector<X11HeardEvent> &events)
{
    if (reply.category != fromServer || reply.client_swapped)
        return;
    const uint8_t *data = xcb_record_enable_context_data(&reply);
    const int length = xcb_record_enable_context_data_length(&reply);
    constexpr int size = sizeof(xcb_key_press_event_t);
    static_assert(size == 32, "as the protocol has it");
    for (int at = 0; at + size <= length; at += size)
        events.push_back(parsed(data + at));
}

} // namespace

X11RecordStream::X11RecordStream(const X11Connection &control, const QByteArray &display)
    : m_control(control)
    , m_data(display)
{
    // A request of an extension that the server lacks would close the connection.
    if (!m_data.isOpen() || !m_control.hasExtension("RECORD"))
        return;
    m_open = createContext() && enableContext();
}

X11RecordStream::~X11RecordStream()
{
    if (m_context == XCB_NONE)
        return;
    xcb_record_free_context(m_control.get(), m_context);
    xcb_flush(m_control.get());
}

bool X11RecordStream::createContext()
{
    xcb_record_range_t range{};
    range.device_events.first = XCB_KEY_PRESS;
    range.device_events.last = XCB_MOTION_NOTIFY;
    const xcb_record_client_spec_t everybody = XCB_RECORD_CS_ALL_CLIENTS;
    const xcb_record_context_t context = xcb_generate_id(m_control.get());
    const xcb_void_cookie_t asked =
        xcb_record_create_context_checked(m_control.get(), context, 0, 1, 1, &everybody, &range);
    const XReply<xcb_generic_error_t> error(xcb_request_check(m_control.get(), asked));
    if (error || !m_control.isOpen())
        return false;
    m_context = context;
    return true;
}

bool X11RecordStream::enableContext()
{
    const auto asked = xcb_record_enable_context(m_data.get(), m_context);
    m_sequence = asked.sequence;
    // The first of many replies to one request says that the telling begins.
    xcb_generic_error_t *failure = nullptr;
    const Reply reply(xcb_record_enable_context_reply(m_data.get(), asked, &failure));
    const XReply<xcb_generic_error_t> error(failure);
    return reply && reply->category == startOfData;
}

int X11RecordStream::descriptor() const
{
    return xcb_get_file_descriptor(m_data.get());
}

void X11RecordStream::nudge() const
{
    const XReply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_control.get(), xcb_get_input_focus(m_control.get()), nullptr));
}

X11RecordStream::Reading X11RecordStream::read(std::vector<X11HeardEvent> &events)
{
    void *told = nullptr;
    xcb_generic_error_t *failure = nullptr;
    if (!xcb_poll_for_reply(m_data.get(), m_sequence, &told, &failure))
        return m_data.isOpen() ? Reading::nothing : Reading::ended;
    const Reply reply(static_cast<xcb_record_enable_context_reply_t *>(told));
    const XReply<xcb_generic_error_t> error(failure);
    if (!reply || reply->category == endOfData)
        return Reading::ended;
    add(*reply, events);
    return Reading::some;
}

} // namespace velvane
