#include "platform/x11/X11Surroundings.h"

#include "platform/x11/XcbXkb.h"

#include <xcb/randr.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <cstring>
#include <utility>

namespace velvane {

namespace {

// When the user turns to another keyboard with another map, the server tells of the map after the
// key that made it change. Longer than it takes for that, shorter than a person between two keys.
constexpr uint32_t keyboardChange = 20;

uint8_t firstEvent(const X11Connection &connection, xcb_extension_t &extension)
{
    const xcb_query_extension_reply_t *data = xcb_get_extension_data(connection.get(), &extension);
    return data && data->present ? data->first_event : uint8_t(0);
}

// Server time since which the map that has been told of holds.
uint32_t mapChangeTime(const xcb_generic_event_t &event)
{
    // Both kinds begin alike.
    xcb_xkb_new_keyboard_notify_event_t change;
    std::memcpy(&change, &event, sizeof change);
    const bool otherKeyboard = change.xkbType == XCB_XKB_NEW_KEYBOARD_NOTIFY
                               && change.requestMinor != XCB_XKB_GET_KBD_BY_NAME;
    return otherKeyboard ? change.time - keyboardChange : change.time;
}

bool isBefore(uint32_t a, uint32_t b)
{
    return static_cast<int32_t>(a - b) < 0;
}

} // namespace

X11Surroundings::X11Surroundings(const QByteArray &display)
    : m_connection(display)
    , m_hasRandr(m_connection.hasExtension("RANDR"))
    , m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES), &xkb_context_unref)
    , m_map(nullptr)
    , m_mapBefore(nullptr)
{
    if (!m_connection.isOpen())
        return;
    // Before anything is asked, or a change in between would go unnoticed.
    selectMapChanges();
    selectDisplayChanges();
    if (m_xkbEvents != 0)
        loadMap();
    loadButtons();
    m_space = X11RootSpace(monitorsOf(m_connection, m_hasRandr));
}

void X11Surroundings::selectMapChanges()
{
    if (!xkb_x11_setup_xkb_extension(
            m_connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr))
        return;
    m_xkbEvents = firstEvent(m_connection, xcb_xkb_id);
    constexpr uint16_t changes =
        XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY;
    // What of a map matters is told apart from the rest.
    constexpr uint16_t parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS
                               | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS;
    xcb_xkb_select_events(m_connection.get(), XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes, parts,
                          parts, nullptr);
}

void X11Surroundings::selectDisplayChanges()
{
    if (!m_hasRandr)
        return;
    m_randrEvents = firstEvent(m_connection, xcb_randr_id);
    xcb_randr_select_input(m_connection.get(), m_connection.root(),
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE
                               | XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    // A monitor that someone lays over the outputs is told this way.
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), m_connection.root(), XCB_CW_EVENT_MASK, &mask);
}

void X11Surroundings::follow()
{
    // Asking brings in what has changed meanwhile: until nothing has.
    while (noteChanges()) {
        if (std::exchange(m_mapIsOld, false))
            loadMap();
        if (std::exchange(m_buttonsAreOld, false))
            loadButtons();
        if (std::exchange(m_spaceIsOld, false))
            m_space = X11RootSpace(monitorsOf(m_connection, m_hasRandr));
    }
}

bool X11Surroundings::noteChanges()
{
    std::optional<uint32_t> mapChanged;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const int type = event->response_type & 0x7f;
        if (type != 0 && type == m_xkbEvents) {
            // Several tell of one change; of several changes only the last is known.
            const uint32_t time = mapChangeTime(*event);
            if (!mapChanged || isBefore(*mapChanged, time))
                mapChanged = time;
        } else if (type == XCB_MAPPING_NOTIFY) {
            m_buttonsAreOld = true;
        } else if (isDisplayChange(type)) {
            m_spaceIsOld = true;
        }
    }
    if (mapChanged) {
        m_mapIsOld = true;
        m_mapChanged = mapChanged;
    }
    return m_mapIsOld || m_buttonsAreOld || m_spaceIsOld;
}

bool X11Surroundings::isDisplayChange(int type) const
{
    if (type == XCB_CONFIGURE_NOTIFY)
        return true;
    return m_randrEvents != 0 && (type == m_randrEvents || type == m_randrEvents + 1);
}

void X11Surroundings::loadMap()
{
    // A server that goes away leaves the last.
    const int32_t device = xkb_x11_get_core_keyboard_device_id(m_connection.get());
    if (device < 0)
        return;
    X11KeyboardMap loaded(xkb_x11_keymap_new_from_device(m_context.get(), m_connection.get(),
                                                         device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!loaded.isNull())
        m_mapBefore = std::exchange(m_map, std::move(loaded));
}

void X11Surroundings::loadButtons()
{
    const XReply<xcb_get_pointer_mapping_reply_t> reply(xcb_get_pointer_mapping_reply(
        m_connection.get(), xcb_get_pointer_mapping(m_connection.get()), nullptr));
    if (!reply)
        return;
    const uint8_t *map = xcb_get_pointer_mapping_map(reply.get());
    m_buttons.assign(map, map + xcb_get_pointer_mapping_map_length(reply.get()));
}

X11HeardEvent X11Surroundings::mapped(X11HeardEvent event) const
{
    const bool isButton = event.type == XCB_BUTTON_PRESS || event.type == XCB_BUTTON_RELEASE;
    // The server records the physical button, but the mapped one in the state of later events.
    if (isButton && event.detail >= 1 && event.detail <= m_buttons.size())
        event.detail = m_buttons[event.detail - 1U];
    return event;
}

X11KeyboardMap &X11Surroundings::mapAt(uint32_t milliseconds)
{
    const bool late = m_mapChanged && isBefore(milliseconds, *m_mapChanged);
    return late && !m_mapBefore.isNull() ? m_mapBefore : m_map;
}

} // namespace velvane
