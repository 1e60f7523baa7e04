#pragma once

#include "editor/AppEntry.h"
#include "platform/AppControl.h"

#include <optional>
#include <vector>

namespace velvane {

/// The applications that a person may choose by name, and their icons. One for all windows, so that
/// what is installed is read once. Main thread.
///
/// Names are unique within a list: of several applications with one name the first listed counts.
/// Lists are sorted by name without regard to case as the user's language has it; names that
/// compare equal keep the order in which they were found.
class AppCatalog {
public:
    /// Borrows the listing for as long as it lives.
    explicit AppCatalog(AppControl &apps) : m_apps(apps) {}

    /// What is installed: read at the first use and kept from then on.
    const std::vector<AppEntry> &installed();

    /// The ordinary applications that run now.
    std::vector<AppEntry> running() const;

    /// The icon of the running, else of the installed application with exactly this name; failing
    /// both, the same by the name in the user's language. Null when there is none.
    QIcon icon(const QString &forName);

private:
    const std::vector<AppInfo> &installedApps();
    QIcon load(const AppInfo &app) const;
    std::vector<AppEntry> entries(const std::vector<AppInfo> &apps) const;

    AppControl &m_apps;
    std::optional<std::vector<AppInfo>> m_installedApps;
    std::optional<std::vector<AppEntry>> m_installed;
};

} // namespace velvane
