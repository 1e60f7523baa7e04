#pragma once

#include "platform/x11/X11Connection.h"

#include <QRect>
#include <QString>

#include <vector>

namespace velvane {

/// What a window says about itself.
struct X11Window {
    xcb_window_t id = XCB_NONE;
    /// The process on this machine; 0 when it does not say or runs on another. In a sandbox only
    /// our own, the others being out of sight.
    qint64 pid = 0;
    QString wmInstance;
    QString wmClass;
    QString applicationId;
    QString title;
    /// A window a user switches to: no panel, dock, menu or helper.
    bool ordinary = true;
    /// Minimized, or taken off the screen in the same way.
    bool hidden = false;
    /// On the desktop in view and not hidden.
    bool onScreen = true;
    /// What a user sees of it, decorations included and shadows not, in root pixels; empty when it
    /// has gone meanwhile.
    QRect frame;
};

/// The windows that the window manager manages, oldest first; none without a window manager.
std::vector<X11Window> managedWindows(const X11Connection &connection);

/// How far a window's own shadow reaches left of and above what a user sees of it, in pixels.
QPoint shadowOf(const X11Connection &connection, xcb_window_t window);

} // namespace velvane
