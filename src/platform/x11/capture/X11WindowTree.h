#pragma once

#include "platform/x11/capture/X11CapturedWindow.h"
#include "platform/x11/capture/X11OwnWindows.h"

#include <vector>

namespace velvane {

/// The root window's children in their order, kept up to date by the server's events, and what of
/// the screen they changed. All in root-window pixels. Windows that vanish in the middle of a
/// question are answered with nothing, which is no error.
class X11WindowTree {
public:
    using Windows = std::vector<std::unique_ptr<X11CapturedWindow>>;

    /// Reads the windows there are; the server stands still meanwhile, so that none is missed.
    X11WindowTree(const X11Connection &connection, const X11OwnWindows &ours);

    void handle(const xcb_generic_event_t &event);

    /// May the screen look different from the last takeChanges()?
    bool hasChanges() const;
    /// What may look different, less what others hide.
    QRegion takeChanges();

    /// The lowest first.
    const Windows &windows() const { return m_windows; }

private:
    void scan();
    void add(xcb_window_t id);
    void remove(xcb_window_t id);
    void reparented(const xcb_reparent_notify_event_t &event);
    void mapped(xcb_window_t id, bool isMapped);
    void configured(const xcb_configure_notify_event_t &event);
    void restack(xcb_window_t id, xcb_window_t above);
    void note(const X11CapturedWindow &window);
    X11CapturedWindow *find(xcb_window_t id) const;
    Windows::iterator at(xcb_window_t id);

    const X11Connection &m_connection;
    const X11OwnWindows m_ours;
    const int m_damageEvent;
    const int m_shapeEvent;
    Windows m_windows;
    /// What windows that came, went or moved changed.
    QRegion m_changes;
};

} // namespace velvane
