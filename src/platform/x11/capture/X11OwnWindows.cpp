#include "platform/x11/capture/X11OwnWindows.h"

#include "platform/Sandbox.h"
#include "platform/x11/X11Property.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <span>

namespace velvane {

namespace {

// A frame holds its client, some hold it in a container.
constexpr int deepestClient = 2;

bool namesThisProcess(const X11Connection &connection, xcb_window_t window)
{
    if (Sandbox::isAround())
        return false;
    const std::vector<uint32_t> pid = X11Property(connection, window, "_NET_WM_PID").numbers();
    return !pid.empty() && pid.front() == uint32_t(QCoreApplication::applicationPid());
}

template <typename Test>
bool anyOf(const X11Connection &connection, xcb_window_t window, int depth, const Test &test)
{
    if (test(window))
        return true;
    if (depth == 0)
        return false;
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), window), nullptr));
    if (!tree)
        return false;
    const std::span children(xcb_query_tree_children(tree.get()),
                             std::size_t(xcb_query_tree_children_length(tree.get())));
    for (const xcb_window_t child : children) {
        if (anyOf(connection, child, depth - 1, test))
            return true;
    }
    return false;
}

} // namespace

X11OwnWindows X11OwnWindows::ofThisProcess()
{
    auto *gui = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const auto *x11 = gui ? gui->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    // Without a display of its own the toolkit has the interface, but nothing behind it.
    xcb_connection_t *connection = x11 ? x11->connection() : nullptr;
    return connection ? X11OwnWindows(connection) : X11OwnWindows();
}

X11OwnWindows::X11OwnWindows(xcb_connection_t *toolkit)
{
    if (xcb_connection_has_error(toolkit) != 0)
        return;
    const xcb_setup_t *setup = xcb_get_setup(toolkit);
    m_resourceBase = setup->resource_id_base;
    m_resourceMask = ~setup->resource_id_mask;
}

bool X11OwnWindows::isMadeByUs(xcb_window_t window) const
{
    return (window & m_resourceMask) == m_resourceBase;
}

bool X11OwnWindows::contains(const X11Connection &connection, xcb_window_t topLevel) const
{
    if (!mayExist())
        return false;
    return anyOf(connection, topLevel, deepestClient, [&](xcb_window_t window) {
        return isMadeByUs(window) || namesThisProcess(connection, window);
    });
}

} // namespace velvane
