#pragma once

#include "platform/AppControl.h"
#include "platform/freedesktop/AppLauncher.h"
#include "platform/freedesktop/AppMatcher.h"
#include "platform/x11/X11WindowManager.h"

namespace velvane {

/// The applications of an X11 session: .desktop entries, and the window manager's windows.
///
/// Starting applications works without a window manager too.
class X11AppControl final : public AppControl {
public:
    X11AppControl(const X11Connection &connection, const X11WindowManager &manager,
                  const QProcessEnvironment &environment);

    QString missing() const override { return m_manager.missing(); }
    std::vector<AppInfo> installed() override;
    std::vector<AppInfo> running() override;
    QImage icon(const AppInfo &app, qreal scale) override;
    void activate(const AppInfo &app) override;
    void launch(const AppInfo &app) override;
    void hide(const AppInfo &app) override;
    Token watchActivations(std::function<void(const AppInfo &)> activated) override;

private:
    std::vector<X11Window> windowsNow(const AppInfo &app);

    const X11Connection &m_connection;
    const X11WindowManager &m_manager;
    const QByteArray m_display;
    const SessionFolders m_folders;
    DesktopEntries m_entries;
    const AppLauncher m_launcher;
};

/// Are two of the running applications the same? Windows of one application share entry and name;
/// without an entry also the process.
bool sameApp(const AppInfo &a, const AppInfo &b);

} // namespace velvane
