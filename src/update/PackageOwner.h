#pragma once

#include <QString>

namespace velvane {

/// Who else keeps the program up to date.
namespace PackageOwner {

enum class Owner { none, flatpak, packageManager };

/// Whose the program is. `root` is the folder in which the system stands, "/" but in tests;
/// `executable` the program's file as the system names it, without symbolic links. Looks at
/// /.flatpak-info and at dpkg's lists of files; runs nothing. Reads up to all of those lists.
Owner of(const QString &executable, const QString &root = QStringLiteral("/"));

/// One sentence that says why the program looks for no updates; empty for none.
QString explanation(Owner owner);

} // namespace PackageOwner

} // namespace velvane
