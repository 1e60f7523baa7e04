#pragma once

#include "platform/AppControl.h"
#include "platform/DesktopShell.h"
#include "platform/x11/X11Permissions.h"
#include "platform/x11/X11WindowManager.h"

#include <QObject>

#include <chrono>
#include <mutex>
#include <optional>

namespace velvane {

/// Our windows are minimized to hide them, since a window manager forgets the rest about a window
/// that is closed: its place, its desktop, whether it was maximized. Those that the user had
/// minimized stay so. Panels that bypass the window manager stay where they are.
///
/// Revealing and opening work without a window manager too.
class X11Shell final : public DesktopShell {
public:
    X11Shell(const X11WindowManager &manager, AppControl &apps, X11Permissions &permissions);

    QString missing() const override { return m_manager.missing(); }
    void hide() override;
    void unhide() override;
    void activate() override;
    bool reveal(const QString &file) override;
    bool open(const QUrl &address) override;
    void noteRecent(const QString &file, const QString &type) override;
    void forgetRecent() override;

    /// The permission whose settings page an address is; nothing for any other address.
    static std::optional<Permission> settingsPage(const QUrl &address);

private:
    std::vector<X11Window> ours() const;
    void noteComingBack();
    bool justAskedBack() const;
    bool isComingBack(const X11Window &window) const;
    void putInOrder(std::vector<X11Window> &windows) const;
    bool isHiddenByUs(const X11Window &window) const;
    xcb_window_t keyboardOfOthers() const;
    void keepKeyboardWith(xcb_window_t other, int looks);
    void bringForward(qint64 pid);

    const X11WindowManager &m_manager;
    AppControl &m_apps;
    X11Permissions &m_permissions;
    /// Owns what waits for an answer, which must not outlive this.
    QObject m_pending;
    std::mutex m_mutex;
    /// Those that hide() has minimized; empty unless hidden.
    X11WindowManager::Windows m_hidden;
    /// Those asked back last, which may still look minimized for a moment.
    X11WindowManager::Windows m_comingBack;
    std::chrono::steady_clock::time_point m_askedBack;
    /// Has the keyboard been asked for since they were asked back?
    bool m_keyboardIsOurs = false;
};

} // namespace velvane
