#include "editor/AppCatalog.h"

#include <QCollator>
#include <QPixmap>
#include <QSet>

#include <algorithm>

namespace velvane {

namespace {

// Those that have a name, each name once, sorted for a person.
std::vector<AppInfo> arranged(std::vector<AppInfo> apps)
{
    QSet<QString> names;
    std::erase_if(apps, [&](const AppInfo &app) {
        if (app.name.isEmpty() || names.contains(app.name))
            return true;
        names.insert(app.name);
        return false;
    });
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(apps, [&](const AppInfo &a, const AppInfo &b) {
        return collator.compare(a.name, b.name) < 0;
    });
    return apps;
}

std::vector<AppInfo> runningApps(AppControl &control)
{
    std::vector<AppInfo> apps = control.running();
    std::erase_if(apps, [](const AppInfo &app) { return app.policy != AppPolicy::regular; });
    return arranged(std::move(apps));
}

} // namespace

const std::vector<AppEntry> &AppCatalog::installed()
{
    if (!m_installed)
        m_installed = entries(installedApps());
    return *m_installed;
}

std::vector<AppEntry> AppCatalog::running() const
{
    return entries(runningApps(m_apps));
}

QIcon AppCatalog::icon(const QString &forName)
{
    if (forName.isEmpty())
        return {};
    const std::vector<AppInfo> running = runningApps(m_apps);
    for (const auto name : {&AppInfo::name, &AppInfo::localizedName}) {
        for (const std::vector<AppInfo> *apps : {&running, &installedApps()}) {
            const auto found = std::ranges::find(*apps, forName, name);
            if (found != apps->end())
                return load(*found);
        }
    }
    return {};
}

const std::vector<AppInfo> &AppCatalog::installedApps()
{
    if (!m_installedApps)
        m_installedApps = arranged(m_apps.installed());
    return *m_installedApps;
}

// Both common scales, so that the icon stays sharp on either kind of display.
QIcon AppCatalog::load(const AppInfo &app) const
{
    QIcon icon;
    for (const qreal scale : {1.0, 2.0}) {
        const QImage image = m_apps.icon(app, scale);
        if (!image.isNull())
            icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

std::vector<AppEntry> AppCatalog::entries(const std::vector<AppInfo> &apps) const
{
    std::vector<AppEntry> entries;
    entries.reserve(apps.size());
    for (const AppInfo &app : apps)
        entries.push_back({app.name, load(app)});
    return entries;
}

} // namespace velvane
