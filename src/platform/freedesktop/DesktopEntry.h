#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace velvane {

/// What a .desktop file says about an application.
struct DesktopEntry {
    /// The file's place below its applications folder, without suffix, '-' for '/'.
    QString id;
    QString path;
    QString name;
    /// Name in the asked language; `name` where there is none.
    QString localizedName;
    QString icon;
    QString exec;
    QString tryExec;
    /// Where the program starts; empty for anywhere.
    QString folder;
    QString startupWmClass;
    /// Nothing when the key is absent, which differs from an empty list.
    std::optional<QStringList> onlyShowIn;
    QStringList notShowIn;
    bool noDisplay = false;
    /// The entry counts as deleted.
    bool hidden = false;
    bool dBusActivatable = false;
    /// The program talks to a terminal, which it does not bring along.
    bool terminal = false;
};

/// Reads a .desktop file's contents; `id` and `path` stay empty.
///
/// Nothing when it describes no application: no group [Desktop Entry], another Type, no Name, or
/// more than a mebibyte. An entry that is hidden needs none of these. Only the first group of that
/// name counts; of a key that comes twice the last; lines that are no key are skipped. `locale` is
/// a POSIX locale name such as "de_DE.UTF-8"; names in it are matched as the entry format says.
std::optional<DesktopEntry> parseDesktopEntry(const QByteArray &bytes, const QString &locale);

/// May the entry be offered on a desktop known by these names, the most specific first?
bool isShown(const DesktopEntry &entry, const QStringList &desktops);

/// The program and arguments that start an application without files: field codes replaced as the
/// entry format says, nothing left for a shell. Empty when the Exec line is malformed or has an
/// unknown field code.
QStringList commandOf(const DesktopEntry &entry);

/// The base name of the program that an Exec line starts; empty when the line is malformed.
QString programOf(const QString &exec);

} // namespace velvane
