#pragma once

#include "platform/AppControl.h"
#include "platform/simulated/Listeners.h"
#include "platform/simulated/Simulated.h"
#include "platform/simulated/SimulatedWindows.h"

#include <map>

namespace velvane {

/// Applications that a test installs and runs, told apart by name.
///
/// missing() stops controlling them only: listing goes on, as the interface says.
class SimulatedApps final : public Simulated<AppControl> {
public:
    using Activated = std::function<void(const AppInfo &)>;

    SimulatedApps(EventLog &log, SimulatedWindows &windows) : m_log(log), m_windows(windows) {}

    /// Adds an application to a listing, as its last. `localizedName` is set to `name` when empty.
    void install(AppInfo app);
    void run(AppInfo app);
    /// Ends a running application.
    void quit(const QString &name);
    /// What icon() answers for a name, scaled as asked.
    void setIcon(const QString &name, const QImage &icon);
    /// The user switches to an application.
    void switchTo(const QString &name);
    /// How often installed() was asked.
    int installedReads() const { return m_installedReads; }

    std::vector<AppInfo> installed() override;
    std::vector<AppInfo> running() override { return m_running; }
    QImage icon(const AppInfo &app, qreal scale) override;
    void activate(const AppInfo &app) override;
    void launch(const AppInfo &app) override;
    void hide(const AppInfo &app) override;
    Token watchActivations(Activated activated) override;

private:
    EventLog &m_log;
    SimulatedWindows &m_windows;
    std::vector<AppInfo> m_installed;
    std::vector<AppInfo> m_running;
    std::map<QString, QImage> m_icons;
    Listeners<Activated> m_watchers;
    int m_installedReads = 0;
    qint64 m_lastPid = 1000;
};

} // namespace velvane
