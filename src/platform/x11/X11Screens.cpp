#include "platform/x11/X11Screens.h"

#include "platform/x11/X11Property.h"

#include <QCoreApplication>

#include <xcb/randr.h>

#include <algorithm>

namespace velvane {

namespace {

QString atomName(const X11Connection &connection, xcb_atom_t atom)
{
    const XReply<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(
        connection.get(), xcb_get_atom_name(connection.get(), atom), nullptr));
    if (!reply)
        return {};
    return QString::fromLatin1(xcb_get_atom_name_name(reply.get()),
                               xcb_get_atom_name_name_length(reply.get()));
}

std::vector<X11Monitor> randrMonitors(const X11Connection &connection)
{
    const auto asked = xcb_randr_get_monitors(connection.get(), connection.root(), 1);
    const XReply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(connection.get(), asked, nullptr));
    std::vector<X11Monitor> monitors;
    if (!reply)
        return monitors;
    for (auto at = xcb_randr_get_monitors_monitors_iterator(reply.get()); at.rem > 0;
         xcb_randr_monitor_info_next(&at)) {
        const QRect frame(at.data->x, at.data->y, at.data->width, at.data->height);
        if (!frame.isEmpty())
            monitors.push_back({atomName(connection, at.data->name), frame, at.data->primary != 0});
    }
    return monitors;
}

// A window in root pixels, without its decorations.
std::optional<QRect> geometry(const X11Connection &connection, xcb_window_t window)
{
    const auto size = xcb_get_geometry(connection.get(), window);
    const auto place = xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0);
    const XReply<xcb_get_geometry_reply_t> sizeReply(
        xcb_get_geometry_reply(connection.get(), size, nullptr));
    const XReply<xcb_translate_coordinates_reply_t> placeReply(
        xcb_translate_coordinates_reply(connection.get(), place, nullptr));
    if (!sizeReply || !placeReply)
        return {};
    return QRect(placeReply->dst_x, placeReply->dst_y, sizeReply->width, sizeReply->height);
}

// Of the desktop in view; a window manager without desktops gives one for all.
QRect workArea(const X11Connection &connection)
{
    X11Property areas(connection, connection.root(), "_NET_WORKAREA");
    X11Property current(connection, connection.root(), "_NET_CURRENT_DESKTOP");
    const std::vector<uint32_t> numbers = areas.numbers();
    const std::vector<uint32_t> desktop = current.numbers();
    std::size_t at = desktop.empty() ? 0 : std::size_t(desktop.front()) * 4;
    if (at + 4 > numbers.size())
        at = 0;
    if (numbers.size() < 4)
        return {};
    const auto value = [&](std::size_t i) { return static_cast<int>(numbers[at + i]); };
    return {value(0), value(1), value(2), value(3)};
}

} // namespace

std::vector<X11Monitor> monitorsOf(const X11Connection &connection, bool hasRandr)
{
    std::vector<X11Monitor> monitors;
    if (hasRandr)
        monitors = randrMonitors(connection);
    if (monitors.empty()) {
        if (const std::optional<QRect> root = geometry(connection, connection.root()))
            monitors.push_back({"screen", *root, true});
    }
    return monitors;
}

X11Screens::X11Screens(const X11Connection &connection)
    : m_connection(connection)
    , m_hasRandr(connection.hasExtension("RANDR"))
{}

QString X11Screens::missing() const
{
    if (m_connection.isOpen())
        return {};
    return QCoreApplication::translate("X11Screens", "There is no connection to an X server.");
}

std::vector<X11Monitor> X11Screens::freshMonitors() const
{
    m_connection.discardEvents();
    return monitorsOf(m_connection, m_hasRandr);
}

QPoint X11Screens::origin() const
{
    return originOf(freshMonitors());
}

std::vector<Display> X11Screens::displays()
{
    return displaysOf(freshMonitors(), workArea(m_connection));
}

std::optional<Display> X11Screens::mainDisplay()
{
    const std::vector<X11Monitor> monitors = freshMonitors();
    const std::vector<Display> all = displaysOf(monitors, workArea(m_connection));
    if (all.empty())
        return {};
    X11Property active(m_connection, m_connection.root(), "_NET_ACTIVE_WINDOW");
    const std::vector<uint32_t> window = active.numbers();
    if (window.empty() || window.front() == XCB_NONE)
        return all.front();
    const std::optional<QRect> frame = geometry(m_connection, window.front());
    if (!frame)
        return all.front();
    const QPointF centre = QPointF(frame->center() - originOf(monitors));
    const auto found = std::ranges::find_if(
        all, [&](const Display &display) { return display.frame.contains(centre); });
    return found == all.end() ? all.front() : *found;
}

std::optional<QPointF> X11Screens::pointer()
{
    const auto asked = xcb_query_pointer(m_connection.get(), m_connection.root());
    const std::vector<X11Monitor> monitors = freshMonitors();
    const XReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.get(), asked, nullptr));
    if (!reply || monitors.empty())
        return {};
    return QPointF(QPoint(reply->root_x, reply->root_y) - originOf(monitors));
}

} // namespace velvane
