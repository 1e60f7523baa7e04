#pragma once

#include "platform/WindowControl.h"
#include "platform/simulated/EventLog.h"
#include "platform/simulated/Simulated.h"

namespace velvane {

/// Windows that a test puts on the desktop.
class SimulatedWindows final : public Simulated<WindowControl> {
public:
    explicit SimulatedWindows(EventLog &log) : m_log(log) {}

    /// Adds a window behind the others and returns its id, a new one when it has none.
    quint64 add(WindowInfo window);
    /// A window closes.
    void remove(quint64 id);
    /// Brings all windows of an application to the front, shown, in their own order.
    void raise(const QString &appName);
    /// Takes all windows of an application off the screen.
    void hide(const QString &appName);

    std::vector<WindowInfo> windows() override;
    void moveWindow(quint64 id, QPointF topLeft) override;

private:
    EventLog &m_log;
    std::vector<WindowInfo> m_windows;
    quint64 m_lastId = 0;
};

} // namespace velvane
