#pragma once

#include "platform/Sandbox.h"

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
    /// Are the programs that entries name out of sight, so that none can be missed?
    bool programsAreHidden = false;

    /// Reads the XDG base folders with their defaults, the locale and XDG_CURRENT_DESKTOP. Folders
    /// that are not absolute are left out. In a sandbox they are those of the session around it.
    static SessionFolders from(const QProcessEnvironment &environment,
                               bool inSandbox = Sandbox::isAround());
};

} // namespace velvane
