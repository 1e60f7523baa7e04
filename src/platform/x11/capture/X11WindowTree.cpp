#include "platform/x11/capture/X11WindowTree.h"

#include "platform/x11/capture/X11Events.h"

#include <xcb/damage.h>
#include <xcb/shape.h>

#include <algorithm>
#include <span>
#include <utility>

namespace velvane {

X11WindowTree::X11WindowTree(const X11Connection &connection, const X11OwnWindows &ours)
    : m_connection(connection)
    , m_ours(ours)
    , m_damageEvent(X11Events::first(connection, &xcb_damage_id))
    , m_shapeEvent(X11Events::first(connection, &xcb_shape_id))
{
    xcb_connection_t *c = m_connection.get();
    xcb_grab_server(c);
    scan();
    xcb_ungrab_server(c);
    xcb_flush(c);
}

void X11WindowTree::scan()
{
    xcb_connection_t *c = m_connection.get();
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY
                            | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(c, m_connection.root(), XCB_CW_EVENT_MASK, &events);
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(c, xcb_query_tree(c, m_connection.root()), nullptr));
    if (!tree)
        return;
    const std::span children(xcb_query_tree_children(tree.get()),
                             std::size_t(xcb_query_tree_children_length(tree.get())));
    for (const xcb_window_t child : children)
        add(child);
}

X11CapturedWindow *X11WindowTree::find(xcb_window_t id) const
{
    const auto found = std::ranges::find(m_windows, id, &X11CapturedWindow::id);
    return found == m_windows.end() ? nullptr : found->get();
}

X11WindowTree::Windows::iterator X11WindowTree::at(xcb_window_t id)
{
    return std::ranges::find(m_windows, id, &X11CapturedWindow::id);
}

void X11WindowTree::note(const X11CapturedWindow &window)
{
    if (window.isShown())
        m_changes += window.frame();
}

void X11WindowTree::add(xcb_window_t id)
{
    if (find(id))
        return;
    std::unique_ptr<X11CapturedWindow> window = X11CapturedWindow::examine(m_connection, id);
    if (!window)
        return;
    window->setOurs(m_ours.contains(m_connection, id));
    note(*window);
    m_windows.push_back(std::move(window));
}

void X11WindowTree::remove(xcb_window_t id)
{
    const auto found = at(id);
    if (found == m_windows.end())
        return;
    note(**found);
    m_windows.erase(found);
}

void X11WindowTree::handle(const xcb_generic_event_t &event)
{
    const int type = X11Events::type(event);
    if (type == m_damageEvent) {
        if (auto *window = find(X11Events::as<xcb_damage_notify_event_t>(event).drawable))
            window->markDrawn();
    } else if (type == m_shapeEvent) {
        if (auto *window = find(X11Events::as<xcb_shape_notify_event_t>(event).affected_window)) {
            note(*window);
            window->dropSurface();
        }
    } else if (type == XCB_CREATE_NOTIFY) {
        add(X11Events::as<xcb_create_notify_event_t>(event).window);
    } else if (type == XCB_DESTROY_NOTIFY) {
        remove(X11Events::as<xcb_destroy_notify_event_t>(event).window);
    } else if (type == XCB_REPARENT_NOTIFY) {
        reparented(X11Events::as<xcb_reparent_notify_event_t>(event));
    } else if (type == XCB_MAP_NOTIFY) {
        mapped(X11Events::as<xcb_map_notify_event_t>(event).window, true);
    } else if (type == XCB_UNMAP_NOTIFY) {
        mapped(X11Events::as<xcb_unmap_notify_event_t>(event).window, false);
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        configured(X11Events::as<xcb_configure_notify_event_t>(event));
    } else if (type == XCB_CIRCULATE_NOTIFY) {
        const auto &circulated = X11Events::as<xcb_circulate_notify_event_t>(event);
        const bool toTop = circulated.place == XCB_PLACE_ON_TOP && !m_windows.empty();
        restack(circulated.window, toTop ? m_windows.back()->id() : XCB_NONE);
    }
}

void X11WindowTree::reparented(const xcb_reparent_notify_event_t &event)
{
    if (event.parent == m_connection.root())
        return add(event.window);
    remove(event.window);
    // The frame that took it in is ours if it is.
    if (auto *frame = find(event.parent))
        frame->setOurs(m_ours.contains(m_connection, frame->id()));
}

void X11WindowTree::mapped(xcb_window_t id, bool isMapped)
{
    X11CapturedWindow *window = find(id);
    if (!window)
        return;
    note(*window);
    // A window may have been given its owner's name since it was made.
    if (isMapped)
        window->setOurs(m_ours.contains(m_connection, id));
    window->setMapped(isMapped);
    note(*window);
}

void X11WindowTree::configured(const xcb_configure_notify_event_t &event)
{
    X11CapturedWindow *window = find(event.window);
    if (!window)
        return;
    const QRegion before = window->area();
    const QRect frame = window->frame();
    window->setGeometry(QRect(event.x, event.y, event.width, event.height), event.border_width);
    if (frame != window->frame() && window->isShown())
        m_changes += before + window->area();
    restack(event.window, event.above_sibling);
}

void X11WindowTree::restack(xcb_window_t id, xcb_window_t above)
{
    const auto from = at(id);
    if (from == m_windows.end() || above == id)
        return;
    auto to = m_windows.begin();
    if (above != XCB_NONE) {
        to = at(above);
        // It has gone since: its own event follows.
        if (to == m_windows.end())
            return;
        ++to;
    }
    if (to == from || to == from + 1)
        return;
    note(**from);
    if (to < from)
        std::rotate(to, from, from + 1);
    else
        std::rotate(from, from + 1, to);
}

bool X11WindowTree::hasChanges() const
{
    const auto drawn = [](const auto &window) { return window->isShown() && window->isDrawn(); };
    return !m_changes.isEmpty() || std::ranges::any_of(m_windows, drawn);
}

QRegion X11WindowTree::takeChanges()
{
    QRegion changes = std::exchange(m_changes, {});
    std::vector<X11CapturedWindow *> drawn;
    for (const auto &window : m_windows) {
        if (!window->isShown() || !window->isDrawn())
            continue;
        window->askDrawn();
        drawn.push_back(window.get());
    }
    QRegion hidden;
    for (auto window = m_windows.rbegin(); window != m_windows.rend() && !drawn.empty(); ++window) {
        if (drawn.back() == window->get()) {
            changes += drawn.back()->takeDrawn() - hidden;
            drawn.pop_back();
        }
        if ((*window)->isShown() && (*window)->isOpaque())
            hidden += (*window)->area();
    }
    return changes;
}

} // namespace velvane
