#pragma once

#include <QProcessEnvironment>
#include <QStringList>

namespace velvane {

/// What a session's environment says about where applications are and how they are named.
struct SessionFolders {
    /// The data folders, the most important first: the user's, then the system's.
    QStringList data;
    /// A POSIX locale name for texts; empty for none.
    QString locale;
    /// The desktop's names, the most specific first.
    QStringList desktops;

    /// Reads the XDG base folders with their defaults, the locale and XDG_CURRENT_DESKTOP. Folders
    /// that are not absolute are left out.
    static SessionFolders from(const QProcessEnvironment &environment);
};

} // namespace velvane
