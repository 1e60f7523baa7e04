#include "platform/x11/X11Poster.h"

#include "platform/x11/X11Xkb.h"

#include <xcb/randr.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <ranges>
#include <utility>

namespace velvane {

namespace {

uint8_t bitOf(xcb_button_t button)
{
    return static_cast<uint8_t>(1U << button);
}

// A window that is never shown: whoever watches it sees when this connection ends.
xcb_window_t makeWindow(const X11Connection &connection)
{
    if (!connection.isOpen())
        return XCB_NONE;
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), 0, window, connection.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

// Displays that change are told to the connection, by RandR or, monitors that are none, by the
// root window itself.
void watchDisplays(const X11Connection &connection, bool hasRandr)
{
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.get(), connection.root(), XCB_CW_EVENT_MASK, &mask);
    if (hasRandr)
        xcb_randr_select_input(connection.get(), connection.root(),
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE
                                   | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE
                                   | XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
}

} // namespace

X11Poster::X11Poster(const QByteArray &display, X11PostedKeys &posted)
    : m_connection(display)
    , m_hasRandr(m_connection.hasExtension("RANDR"))
    , m_window(makeWindow(m_connection))
    , m_posted(posted)
    , m_watchdog(display, m_window)
{
    if (!m_connection.isOpen())
        return;
    useXkb(m_connection);
    watchDisplays(m_connection, m_hasRandr);
    // The watchdog looks for the window.
    sync();
}

X11Poster::~X11Poster()
{
    releaseAll();
    takeBackLoans();
    lockAgain();
}

const X11RootSpace &X11Poster::space()
{
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const int type = event->response_type & 0x7f;
        // Errors and the map's changes, which every client is told, say nothing of displays.
        if (type != 0 && type != XCB_MAPPING_NOTIFY)
            m_spaceIsKnown = false;
    }
    if (!m_spaceIsKnown) {
        m_space = X11RootSpace(monitorsOf(m_connection, m_hasRandr));
        m_spaceIsKnown = true;
    }
    return m_space;
}

void X11Poster::move(QPoint pixel)
{
    fake(XCB_MOTION_NOTIFY, 0, pixel);
    xcb_flush(m_connection.get());
}

void X11Poster::drag(QPoint pixel)
{
    constexpr xcb_button_t first = XCB_BUTTON_INDEX_1;
    if ((m_held.buttons & bitOf(first)) == 0 && guard(first))
        fake(XCB_BUTTON_PRESS, first);
    move(pixel);
}

void X11Poster::button(xcb_button_t button, bool down, QPoint pixel)
{
    if (down && !guard(button))
        return;
    // A move to where the pointer is would be heard as one.
    if (!pointerIsAt(pixel))
        fake(XCB_MOTION_NOTIFY, 0, pixel);
    fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, button);
    xcb_flush(m_connection.get());
    if (!down && (m_held.buttons & bitOf(button)) != 0) {
        m_held.buttons &= static_cast<uint8_t>(~bitOf(button));
        m_watchdog.tell(m_held);
    }
}

void X11Poster::tap(std::span<const xcb_keycode_t> keys)
{
    for (const xcb_keycode_t key : keys)
        HeldInput::set(m_held.pressed, key, true);
    const bool guarded = m_watchdog.tell(m_held);
    if (guarded) {
        for (const xcb_keycode_t key : keys) {
            m_posted.add(key);
            fake(XCB_KEY_PRESS, key);
        }
        for (const xcb_keycode_t key : std::views::reverse(keys))
            fake(XCB_KEY_RELEASE, key);
        xcb_flush(m_connection.get());
    }
    m_held.pressed = {};
    if (guarded)
        m_watchdog.tell(m_held);
}

bool X11Poster::lend(std::span<const KeySymbols> loans)
{
    const HeldInput::Keys before = m_held.lent;
    for (const KeySymbols &loan : loans)
        HeldInput::set(m_held.lent, loan.key, true);
    if (m_watchdog.tell(m_held))
        return changeSymbols(m_connection.get(), loans);
    m_held.lent = before;
    return false;
}

void X11Poster::takeBackLoans()
{
    if (m_held.lent == HeldInput::Keys())
        return;
    changeSymbols(m_connection.get(), lentKeys(m_held));
    m_held.lent = {};
    m_watchdog.tell(m_held);
}

bool X11Poster::unlock(uint8_t modifiers)
{
    m_held.unlocked |= modifiers;
    if (!m_watchdog.tell(m_held)) {
        m_held.unlocked &= static_cast<uint8_t>(~modifiers);
        return false;
    }
    changeLock(modifiers, 0);
    return true;
}

void X11Poster::lockAgain()
{
    if (m_held.unlocked == 0)
        return;
    changeLock(m_held.unlocked, m_held.unlocked);
    m_held.unlocked = 0;
    m_watchdog.tell(m_held);
}

// Has the watchdog know that a button is about to be pressed. False when nobody would release it.
bool X11Poster::guard(xcb_button_t button)
{
    const uint8_t before = m_held.buttons;
    m_held.buttons |= bitOf(button);
    if (m_watchdog.tell(m_held))
        return true;
    m_held.buttons = before;
    return false;
}

void X11Poster::fake(uint8_t type, uint8_t detail, QPoint pixel)
{
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, m_connection.root(),
                        static_cast<int16_t>(pixel.x()), static_cast<int16_t>(pixel.y()), 0);
}

bool X11Poster::pointerIsAt(QPoint pixel) const
{
    const auto asked = xcb_query_pointer(m_connection.get(), m_connection.root());
    const XReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.get(), asked, nullptr));
    return reply && QPoint(reply->root_x, reply->root_y) == pixel;
}

void X11Poster::changeLock(uint8_t modifiers, uint8_t locked)
{
    lockModifiers(m_connection, modifiers, locked);
    sync();
}

void X11Poster::sync()
{
    const XReply<xcb_get_input_focus_reply_t> done(xcb_get_input_focus_reply(
        m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

void X11Poster::releaseAll()
{
    for (xcb_button_t button = 1; button < 8; ++button) {
        if ((m_held.buttons & bitOf(button)) != 0)
            fake(XCB_BUTTON_RELEASE, button);
    }
    // Whatever was posted last has arrived, too.
    sync();
    if (std::exchange(m_held.buttons, uint8_t(0)) != 0)
        m_watchdog.tell(m_held);
}

} // namespace velvane
