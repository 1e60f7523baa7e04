#pragma once

#include "platform/Desktop.h"
#include "platform/SystemClock.h"
#include "platform/x11/X11AppControl.h"
#include "platform/x11/X11InputSynthesizer.h"
#include "platform/x11/X11InputTap.h"
#include "platform/x11/X11KeyWatcher.h"
#include "platform/x11/X11Permissions.h"
#include "platform/x11/X11Screens.h"
#include "platform/x11/X11Shell.h"
#include "platform/x11/X11WindowControl.h"
#include "platform/x11/capture/X11Capture.h"

namespace velvane {

/// An X11 session: its displays, applications and permissions. Without a server it has the
/// installed applications only.
class X11Desktop final : public Desktop {
public:
    /// Uses the display and the folders that the environment names.
    explicit X11Desktop(const QProcessEnvironment &environment);

    Clock &clock() override { return m_clock; }
    InputSynthesizer &input() override { return m_input; }
    InputTap &tap() override { return m_tap; }
    KeyWatcher &keys() override { return m_keys; }
    AppControl &apps() override { return m_apps; }
    WindowControl &windows() override { return m_windows; }
    Screens &screens() override { return m_screens; }
    ScreenCapture &capture() override { return m_capture; }
    Permissions &permissions() override { return m_permissions; }
    DesktopShell &shell() override { return m_shell; }
    QString description() const override;
    std::vector<DesktopFact> facts() const override;

private:
    DesktopFact windowManager() const;
    static DesktopFact watchdog();

    const QString m_display;
    X11Connection m_connection;
    X11PostedKeys m_postedKeys;
    X11Listener m_listener;
    SystemClock m_clock;
    X11WindowManager m_manager;
    X11AppControl m_apps;
    X11Screens m_screens;
    X11WindowControl m_windows;
    X11Permissions m_permissions;
    X11Shell m_shell;
    X11InputSynthesizer m_input;
    X11InputTap m_tap;
    X11KeyWatcher m_keys;
    X11Capture m_capture;
};

} // namespace velvane
