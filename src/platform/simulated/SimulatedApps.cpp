#include "platform/simulated/SimulatedApps.h"

#include <algorithm>

namespace velvane {

namespace {

AppInfo completed(AppInfo app)
{
    if (app.localizedName.isEmpty())
        app.localizedName = app.name;
    return app;
}

} // namespace

void SimulatedApps::install(AppInfo app)
{
    m_installed.push_back(completed(std::move(app)));
}

void SimulatedApps::run(AppInfo app)
{
    if (!app.pid)
        app.pid = ++m_lastPid;
    m_running.push_back(completed(std::move(app)));
}

void SimulatedApps::quit(const QString &name)
{
    std::erase_if(m_running, [&](const AppInfo &app) { return app.name == name; });
}

void SimulatedApps::setIcon(const QString &name, const QImage &icon)
{
    m_icons[name] = icon;
}

void SimulatedApps::switchTo(const QString &name)
{
    const auto found = std::ranges::find(m_running, name, &AppInfo::name);
    if (found == m_running.end())
        return;
    m_windows.raise(name);
    const AppInfo app = *found;
    m_watchers.each([&](const Activated &activated) { activated(app); });
}

std::vector<AppInfo> SimulatedApps::installed()
{
    ++m_installedReads;
    return m_installed;
}

QImage SimulatedApps::icon(const AppInfo &app, qreal scale)
{
    const auto found = m_icons.find(app.name);
    if (found == m_icons.end())
        return {};
    const int side = qRound(16 * scale);
    QImage icon = found->second.scaled(side, side);
    icon.setDevicePixelRatio(scale);
    return icon;
}

void SimulatedApps::activate(const AppInfo &app)
{
    const auto found = std::ranges::find(m_running, app.name, &AppInfo::name);
    if (!works() || found == m_running.end())
        return;
    m_log.add("activate " + app.name);
    switchTo(app.name);
}

void SimulatedApps::launch(const AppInfo &app)
{
    const auto found = std::ranges::find(m_installed, app.name, &AppInfo::name);
    if (!works() || found == m_installed.end())
        return;
    m_log.add("launch " + app.name);
    run(*found);
    switchTo(app.name);
}

void SimulatedApps::hide(const AppInfo &app)
{
    const auto found = std::ranges::find(m_running, app.name, &AppInfo::name);
    if (!works() || found == m_running.end())
        return;
    m_log.add("hide " + app.name);
    m_windows.hide(app.name);
}

Token SimulatedApps::watchActivations(Activated activated)
{
    return works() ? m_watchers.add(std::move(activated)) : Token();
}

} // namespace velvane
