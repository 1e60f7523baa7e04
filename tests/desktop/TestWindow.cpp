#include "TestWindow.h"

#include "Eventually.h"
#include "platform/x11/X11Property.h"

#include <algorithm>

namespace velvane {

TestWindow::TestWindow(X11Connection &connection, const QString &name, const QRect &frame,
                       Type type)
    : m_connection(connection)
    , m_id(xcb_generate_id(connection.get()))
{
    const auto value = [](int number) { return static_cast<uint16_t>(number); };
    const auto place = [](int number) { return static_cast<int16_t>(number); };
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_id, m_connection.root(),
                      place(frame.x()), place(frame.y()), value(frame.width()),
                      value(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      0, nullptr);
    const QByteArray text = name.toLatin1();
    setBytes("WM_CLASS", XCB_ATOM_STRING, text.toLower() + '\0' + text + '\0');
    setBytes("WM_NAME", XCB_ATOM_STRING, text);
    setNumbers("_NET_WM_PID", XCB_ATOM_CARDINAL, {uint32_t(QCoreApplication::applicationPid())});
    // A user's place and size, which no window manager changes.
    std::vector<uint32_t> hints(18, 0);
    hints[0] = 1 | 2;
    setNumbers("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, hints);
    if (type == Type::dock || type == Type::panel)
        setNumbers("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                   {m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    if (type == Type::panel)
        setNumbers("_NET_WM_STRUT", XCB_ATOM_CARDINAL, {0, 0, uint32_t(frame.height()), 0});
    // Later only the window manager may write it.
    if (type == Type::helper)
        setNumbers("_NET_WM_STATE", XCB_ATOM_ATOM,
                   {m_connection.atom("_NET_WM_STATE_SKIP_TASKBAR")});
    if (type == Type::shadowed) {
        setNumbers("_MOTIF_WM_HINTS", m_connection.atom("_MOTIF_WM_HINTS"), {2, 0, 0, 0, 0});
        setNumbers("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {20, 22, 14, 26});
    }
    xcb_map_window(m_connection.get(), m_id);
    xcb_flush(m_connection.get());
    eventually([&] { return isManaged(); });
}

TestWindow::~TestWindow()
{
    xcb_destroy_window(m_connection.get(), m_id);
    xcb_flush(m_connection.get());
    eventually([&] { return !isManaged(); });
}

bool TestWindow::isManaged() const
{
    X11Property list(m_connection, m_connection.root(), "_NET_CLIENT_LIST");
    return std::ranges::count(list.numbers(), m_id) > 0;
}

void TestWindow::setNumbers(const QByteArray &property, xcb_atom_t type,
                            const std::vector<uint32_t> &numbers)
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_id,
                        m_connection.atom(property), type, 32, uint32_t(numbers.size()),
                        numbers.data());
    xcb_flush(m_connection.get());
}

void TestWindow::setBytes(const QByteArray &property, xcb_atom_t type, const QByteArray &bytes)
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_id,
                        m_connection.atom(property), type, 8, uint32_t(bytes.size()),
                        bytes.constData());
    xcb_flush(m_connection.get());
}

void TestWindow::ask(const QByteArray &message, const std::vector<uint32_t> &data)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_id;
    event.type = m_connection.atom(message);
    std::ranges::copy(data, event.data.data32);
    xcb_send_event(m_connection.get(), 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection.get());
}

} // namespace velvane
