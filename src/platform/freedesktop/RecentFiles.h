#pragma once

#include <QString>

namespace velvane {

/// The list of recently used files that all programs of the desktop share: XBEL, as GTK, KDE and
/// their file panels read it. Any thread; processes take turns.
namespace RecentFiles {

/// $XDG_DATA_HOME/recently-used.xbel.
QString standardList();

/// Puts a file of this MIME type into a list as used now by this program. The entries of others
/// stay. False when the list cannot be read as one or not be written; it is left alone then.
bool add(const QString &file, const QString &type, const QString &list);

/// Takes out of a list what this program has put there. A file that other programs have used too
/// stays as theirs. False as for add().
bool removeOurs(const QString &list);

} // namespace RecentFiles

} // namespace velvane
