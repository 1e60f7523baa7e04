#pragma once

#include "platform/freedesktop/DesktopEntries.h"

#include <QHash>

namespace velvane {

/// What a running window tells about its application; unknown parts are empty.
struct WindowIdentity {
    /// The application id that some toolkits put on their windows.
    QString applicationId;
    QString wmClass;
    QString wmInstance;
    /// Base names of the process's program and of the script it interprets.
    QString program;
    QString script;
};

/// Finds the .desktop entry that a window belongs to.
class AppMatcher {
public:
    /// Keeps the list as long as it lives.
    explicit AppMatcher(std::shared_ptr<const DesktopEntries::List> entries);

    /// The first that matches, without regard to case: by application id, by StartupWMClass or id
    /// and the window's class, then its instance, last by the program. Of several, one that is
    /// displayed. Null when none does.
    const DesktopEntry *match(const WindowIdentity &window) const;

private:
    using Index = QHash<QString, const DesktopEntry *>;

    static void note(Index &index, const QString &key, const DesktopEntry &entry);
    static const DesktopEntry *find(const Index &index, const QString &key);

    std::shared_ptr<const DesktopEntries::List> m_entries;
    Index m_byId;
    /// By the last part of an id such as org.example.Notes.
    Index m_byLastPart;
    Index m_byClass;
    Index m_byProgram;
};

} // namespace velvane
