#pragma once

#include "platform/Desktop.h"
#include "platform/simulated/EventLog.h"
#include "platform/simulated/SimulatedApps.h"
#include "platform/simulated/SimulatedCapture.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedPermissions.h"
#include "platform/simulated/SimulatedScreens.h"
#include "platform/simulated/SimulatedShell.h"
#include "platform/simulated/SimulatedWindows.h"

namespace velvane {

/// A desktop in memory: virtual time, a user whom a test plays, and a log of what was done to it.
///
/// Calls to listeners come on the thread that lets time pass or that plays the user, so one thread
/// at a time may use it; the clock and the log may be used from any.
class SimulatedDesktop final : public Desktop {
public:
    SimulatedClock &clock() override { return m_clock; }
    SimulatedInput &input() override { return m_input; }
    SimulatedTap &tap() override { return m_tap; }
    SimulatedKeys &keys() override { return m_keys; }
    SimulatedApps &apps() override { return m_apps; }
    SimulatedWindows &windows() override { return m_windows; }
    SimulatedScreens &screens() override { return m_screens; }
    SimulatedCapture &capture() override { return m_capture; }
    SimulatedPermissions &permissions() override { return m_permissions; }
    SimulatedShell &shell() override { return m_shell; }
    QString description() const override { return "simulated desktop"; }

    /// The user presses a key: watchers and the tap notice it.
    void press(quint16 keyCode, quint64 modifiers = 0, const QString &text = {});

    /// The input events posted so far.
    std::vector<InputEvent> posted() const { return m_log.posted(); }

    /// All that was done so far, input included, one line each.
    QStringList log() const { return m_log.lines(); }

    void clearLog() { m_log.clear(); }

private:
    EventLog m_log;
    SimulatedClock m_clock;
    SimulatedPermissions m_permissions{m_log};
    SimulatedScreens m_screens;
    SimulatedWindows m_windows{m_log};
    SimulatedApps m_apps{m_log, m_windows};
    SimulatedTap m_tap{m_permissions};
    SimulatedKeys m_keys;
    SimulatedInput m_input{m_log, m_clock, m_screens, m_tap};
    SimulatedCapture m_capture{m_clock, m_permissions};
    SimulatedShell m_shell{m_log};
};

} // namespace velvane
