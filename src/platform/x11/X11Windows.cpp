#include "platform/x11/X11Windows.h"

#include "platform/Sandbox.h"
#include "platform/x11/X11Property.h"
#include "platform/x11/capture/X11OwnWindows.h"

#include <QMargins>
#include <QSysInfo>

#include <algorithm>

namespace velvane {

namespace {

// Of WM_STATE.
constexpr uint32_t iconicState = 3;

// Widths at the left, right, top and bottom. Nonsense must not leave the numbers of a screen.
QMargins marginsOf(X11Property &&property)
{
    const std::vector<uint32_t> sides = property.numbers();
    if (sides.size() < 4 || std::ranges::any_of(sides, [](uint32_t n) { return n > 10'000; }))
        return {};
    const auto side = [&](std::size_t i) { return static_cast<int>(sides[i]); };
    return {side(0), side(2), side(1), side(3)};
}

// Where a window is and whether it is drawn.
class PlaceQuestion {
public:
    PlaceQuestion(const X11Connection &connection, xcb_window_t window)
        : m_connection(connection)
        , m_geometry(xcb_get_geometry(connection.get(), window))
        , m_place(xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0))
        , m_attributes(xcb_get_window_attributes(connection.get(), window))
        , m_decoration(connection, window, "_NET_FRAME_EXTENTS")
        , m_shadow(connection, window, "_GTK_FRAME_EXTENTS")
    {}

    void answer(X11Window &window)
    {
        xcb_connection_t *connection = m_connection.get();
        const XReply<xcb_get_geometry_reply_t> size(
            xcb_get_geometry_reply(connection, m_geometry, nullptr));
        const XReply<xcb_translate_coordinates_reply_t> place(
            xcb_translate_coordinates_reply(connection, m_place, nullptr));
        const XReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection, m_attributes, nullptr));
        if (size && place)
            window.frame = QRect(place->dst_x, place->dst_y, size->width, size->height)
                               .marginsAdded(marginsOf(std::move(m_decoration)))
                               .marginsRemoved(marginsOf(std::move(m_shadow)));
        window.onScreen =
            attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE && !window.hidden;
    }

private:
    const X11Connection &m_connection;
    const xcb_get_geometry_cookie_t m_geometry;
    const xcb_translate_coordinates_cookie_t m_place;
    const xcb_get_window_attributes_cookie_t m_attributes;
    X11Property m_decoration, m_shadow;
};

// The questions about one window, all asked at once.
class Questions {
public:
    Questions(const X11Connection &connection, xcb_window_t window)
        : m_connection(connection)
        , m_window(window)
        , m_class(connection, window, "WM_CLASS")
        , m_pid(connection, window, "_NET_WM_PID")
        , m_machine(connection, window, "WM_CLIENT_MACHINE")
        , m_gtkId(connection, window, "_GTK_APPLICATION_ID")
        , m_desktopFile(connection, window, "_KDE_NET_WM_DESKTOP_FILE")
        , m_name(connection, window, "_NET_WM_NAME")
        , m_oldName(connection, window, "WM_NAME")
        , m_type(connection, window, "_NET_WM_WINDOW_TYPE")
        , m_state(connection, window, "_NET_WM_STATE")
        , m_wmState(connection, window, "WM_STATE")
        , m_placement(connection, window)
    {}

    X11Window answer()
    {
        X11Window window;
        window.id = m_window;
        const QStringList names = m_class.texts();
        window.wmInstance = names.value(0);
        window.wmClass = names.value(1);
        const std::vector<uint32_t> pid = m_pid.numbers();
        if (!pid.empty() && isLocal() && isOfOurNumbers())
            window.pid = pid.front();
        window.applicationId = m_gtkId.text();
        if (window.applicationId.isEmpty())
            window.applicationId = m_desktopFile.text();
        window.title = m_name.text();
        if (window.title.isEmpty())
            window.title = m_oldName.texts().value(0);
        window.ordinary = hasOrdinaryType() && !has(m_state, "_NET_WM_STATE_SKIP_TASKBAR");
        window.hidden = has(m_state, "_NET_WM_STATE_HIDDEN") || isIconic();
        m_placement.answer(window);
        return window;
    }

private:
    bool isLocal()
    {
        const QString machine = m_machine.texts().value(0);
        return machine.isEmpty() || machine == QSysInfo::machineHostName();
    }

    // Each sandbox counts its processes anew, so most of them have one that is ours by its number.
    bool isOfOurNumbers() const
    {
        return !Sandbox::isAround() || X11OwnWindows::ofThisProcess().isMadeByUs(m_window);
    }

    bool has(X11Property &property, const QByteArray &atom)
    {
        return std::ranges::count(property.numbers(), m_connection.atom(atom)) > 0;
    }

    bool isIconic()
    {
        const std::vector<uint32_t> state = m_wmState.numbers();
        return !state.empty() && state.front() == iconicState;
    }

    // A window that gives no type is a plain one.
    bool hasOrdinaryType()
    {
        return m_type.numbers().empty() || has(m_type, "_NET_WM_WINDOW_TYPE_NORMAL")
               || has(m_type, "_NET_WM_WINDOW_TYPE_DIALOG");
    }

    const X11Connection &m_connection;
    const xcb_window_t m_window;
    X11Property m_class, m_pid, m_machine, m_gtkId, m_desktopFile;
    X11Property m_name, m_oldName, m_type, m_state, m_wmState;
    PlaceQuestion m_placement;
};

} // namespace

std::vector<X11Window> managedWindows(const X11Connection &connection)
{
    std::vector<Questions> questions;
    for (const uint32_t id :
         X11Property(connection, connection.root(), "_NET_CLIENT_LIST").numbers())
        questions.emplace_back(connection, id);
    std::vector<X11Window> windows;
    windows.reserve(questions.size());
    for (Questions &question : questions)
        windows.push_back(question.answer());
    return windows;
}

QPoint shadowOf(const X11Connection &connection, xcb_window_t window)
{
    const QMargins shadow = marginsOf(X11Property(connection, window, "_GTK_FRAME_EXTENTS"));
    return {shadow.left(), shadow.top()};
}

} // namespace velvane
