#pragma once

#include <QList>
#include <QString>

namespace velvane {

/// Regular applications have windows a user switches to; accessories are panels, docks and
/// background agents.
enum class AppPolicy { regular, accessory };

/// One application, installed or running.
struct AppInfo {
    /// The name that steps store: the same in every language. Empty when it has none.
    QString name;
    /// The name in the user's language; equal to `name` when there is no other.
    QString localizedName;
    /// Identifies an installed application within the system ("org.example.Notes"); empty for a
    /// running one that belongs to no entry.
    QString id;
    /// The file that describes it; empty like `id`.
    QString desktopFile;
    /// A name in the icon theme, or an absolute path; empty when it has none.
    QString iconName;
    AppPolicy policy = AppPolicy::regular;
    /// Of a running application; 0 when unknown or not running.
    qint64 pid = 0;
    /// Is it this process?
    bool ours = false;
    /// Its windows, oldest first, as WindowInfo::id names them; empty when it does not run.
    QList<quint64> windows;

    /// Is it this application's name, in either language? Capitals do not matter; an empty name is
    /// no name.
    bool isNamed(const QString &wanted) const
    {
        const auto equals = [&wanted](const QString &own) {
            return !own.isEmpty() && own.compare(wanted, Qt::CaseInsensitive) == 0;
        };
        return equals(name) || equals(localizedName);
    }
};

} // namespace velvane
