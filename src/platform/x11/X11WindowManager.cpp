#include "platform/x11/X11WindowManager.h"

#include "platform/x11/X11Property.h"

#include <QCoreApplication>

#include <algorithm>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("X11WindowManager", text);
}

// Who asks, as the hints number it: a pager, whose wishes are a user's.
constexpr uint32_t fromPager = 2;
constexpr uint32_t iconicState = 3;

// Of a message that moves a window: gravity, which of x and y it holds, who asks.
constexpr uint32_t moveFlags = XCB_GRAVITY_NORTH_WEST | 1 << 8 | 1 << 9 | fromPager << 12;

} // namespace

X11WindowManager::X11WindowManager(const X11Connection &connection, bool inWaylandSession)
    : m_connection(connection)
    , m_inWaylandSession(inWaylandSession)
{}

QString X11WindowManager::missing() const
{
    if (!m_connection.isOpen())
        return tr("There is no display.");
    if (m_inWaylandSession)
        return tr("Only X11 windows can be controlled in a Wayland session. "
                  "Log in with an X11 session instead.");
    if (checkWindow() == XCB_NONE)
        return tr("No window manager that can be asked (EWMH) is running. Start one.");
    return {};
}

// A window that names itself, so that one left over from a manager that has ended does not count.
xcb_window_t X11WindowManager::checkWindow() const
{
    const auto named = [&](xcb_window_t window) -> xcb_window_t {
        X11Property check(m_connection, window, "_NET_SUPPORTING_WM_CHECK");
        const std::vector<uint32_t> numbers = check.numbers();
        return numbers.empty() ? XCB_NONE : numbers.front();
    };
    const xcb_window_t window = named(m_connection.root());
    return window != XCB_NONE && named(window) == window ? window : XCB_NONE;
}

QString X11WindowManager::name() const
{
    const xcb_window_t window = checkWindow();
    if (window == XCB_NONE)
        return {};
    const QString given = X11Property(m_connection, window, "_NET_WM_NAME").text();
    return given.isEmpty() ? tr("without a name") : given;
}

bool X11WindowManager::isComposited() const
{
    const xcb_atom_t selection = m_connection.atom("_NET_WM_CM_S0");
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        m_connection.get(), xcb_get_selection_owner(m_connection.get(), selection), nullptr));
    return owner && owner->owner != XCB_NONE;
}

bool X11WindowManager::supports(const QByteArray &hint) const
{
    X11Property supported(m_connection, m_connection.root(), "_NET_SUPPORTED");
    return std::ranges::count(supported.numbers(), m_connection.atom(hint)) > 0;
}

QStringList X11WindowManager::lacking() const
{
    QStringList names;
    for (const char *hint : {"_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST_STACKING",
                             "_NET_FRAME_EXTENTS", "_NET_MOVERESIZE_WINDOW"}) {
        if (!supports(hint))
            names << hint;
    }
    return names;
}

X11WindowManager::Windows X11WindowManager::stacking() const
{
    X11Property stacked(m_connection, m_connection.root(), "_NET_CLIENT_LIST_STACKING");
    X11Property listed(m_connection, m_connection.root(), "_NET_CLIENT_LIST");
    const Windows windows = stacked.numbers();
    return windows.empty() ? listed.numbers() : windows;
}

xcb_window_t X11WindowManager::activeWindow() const
{
    X11Property active(m_connection, m_connection.root(), "_NET_ACTIVE_WINDOW");
    const std::vector<uint32_t> window = active.numbers();
    return window.empty() ? XCB_NONE : window.front();
}

void X11WindowManager::minimize(const Windows &windows) const
{
    for (const xcb_window_t window : windows)
        ask(window, "WM_CHANGE_STATE", {iconicState});
    xcb_flush(m_connection.get());
}

void X11WindowManager::restore(const std::vector<X11Window> &windows, xcb_window_t active) const
{
    for (const X11Window &window : windows)
        giveKeyboard(window.id);
    if (!windows.empty() && active != XCB_NONE)
        giveKeyboard(active);
    xcb_flush(m_connection.get());
}

void X11WindowManager::raise(const std::vector<X11Window> &windows) const
{
    xcb_window_t active = windows.empty() ? XCB_NONE : windows.back().id;
    for (const X11Window &window : windows) {
        if (window.hidden)
            giveKeyboard(window.id);
        // One or the other of these two ways works.
        ask(window.id, "_NET_RESTACK_WINDOW", {fromPager, XCB_NONE, XCB_STACK_MODE_ABOVE});
        configure(window.id, XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
        if (window.ordinary)
            active = window.id;
    }
    if (active != XCB_NONE)
        giveKeyboard(active);
    xcb_flush(m_connection.get());
}

std::vector<X11Window> X11WindowManager::stacked() const
{
    const Windows order = stacking();
    const auto rank = [&](const X11Window &window) {
        return std::ranges::find(order, window.id) - order.begin();
    };
    std::vector<X11Window> windows = managedWindows(m_connection);
    std::ranges::stable_sort(windows, {}, rank);
    return windows;
}

void X11WindowManager::move(xcb_window_t window, QPoint topLeft) const
{
    const auto x = static_cast<uint32_t>(topLeft.x());
    const auto y = static_cast<uint32_t>(topLeft.y());
    if (supports("_NET_MOVERESIZE_WINDOW"))
        ask(window, "_NET_MOVERESIZE_WINDOW", {moveFlags, x, y, 0, 0});
    else
        configure(window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, {x, y});
    xcb_flush(m_connection.get());
}

void X11WindowManager::ask(xcb_window_t window, const QByteArray &message,
                           std::initializer_list<uint32_t> data) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = m_connection.atom(message);
    std::ranges::copy(data, event.data.data32);
    const uint32_t receivers =
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    xcb_send_event(m_connection.get(), 0, m_connection.root(), receivers,
                   reinterpret_cast<const char *>(&event));
}

// Also the way to bring a minimized window back: mapping it does nothing in mutter, and nothing
// anywhere as long as it is still being minimized.
void X11WindowManager::giveKeyboard(xcb_window_t window) const
{
    ask(window, "_NET_ACTIVE_WINDOW", {fromPager, XCB_CURRENT_TIME, XCB_NONE});
    xcb_flush(m_connection.get());
}

// The window may have gone: its error is dropped, since nobody reads this connection's events.
void X11WindowManager::configure(xcb_window_t window, uint16_t mask,
                                 const std::vector<uint32_t> &values) const
{
    const auto sent = xcb_configure_window_checked(m_connection.get(), window, mask, values.data());
    xcb_discard_reply(m_connection.get(), sent.sequence);
}

} // namespace velvane
