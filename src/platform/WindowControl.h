#pragma once

#include "platform/AppInfo.h"
#include "platform/Facility.h"

#include <QRectF>

#include <vector>

namespace velvane {

/// One window on the desktop.
struct WindowInfo {
    /// Names the window while it exists.
    quint64 id = 0;
    AppInfo owner{};
    QString title{};
    /// What a user sees of it, decorations included and shadows not: points, relative to the
    /// primary display's top left.
    QRectF frame{};
    /// False while hidden or minimized.
    bool onScreen = true;
    /// Is it the window that its application would give the keyboard to?
    bool main = false;
};

/// Lists the windows of all applications and moves them. Any thread.
class WindowControl : public Facility {
public:
    /// All windows, the frontmost first.
    virtual std::vector<WindowInfo> windows() = 0;

    /// Moves the top left of a window's visible frame to a point; the size stays. A window that is
    /// gone is skipped silently.
    virtual void moveWindow(quint64 id, QPointF topLeft) = 0;
};

} // namespace velvane
