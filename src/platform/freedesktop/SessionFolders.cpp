#include "platform/freedesktop/SessionFolders.h"

#include <QDir>

namespace velvane {

namespace {

// An empty variable counts as unset.
QString valueOr(const QProcessEnvironment &environment, const QString &name, const QString &other)
{
    const QString value = environment.value(name);
    return value.isEmpty() ? other : value;
}

QStringList dataFolders(const QProcessEnvironment &environment, const QString &home)
{
    const QString own = valueOr(environment, "XDG_DATA_HOME", home + "/.local/share");
    const QString shared = valueOr(environment, "XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    return QStringList(own) + shared.split(u':');
}

// The variables speak of the sandbox there; these are the usual places of the session.
QStringList dataFoldersAround(const QProcessEnvironment &environment, const QString &home)
{
    const QString own = valueOr(environment, "HOST_XDG_DATA_HOME", home + "/.local/share");
    return {own, "/var/lib/flatpak/exports/share", Sandbox::seenFromInside("/usr/local/share"),
            Sandbox::seenFromInside("/usr/share")};
}

} // namespace

SessionFolders SessionFolders::from(const QProcessEnvironment &environment, bool inSandbox)
{
    const QString home = valueOr(environment, "HOME", QDir::homePath());
    SessionFolders folders;
    folders.programsAreHidden = inSandbox;
    for (const QString &folder :
         inSandbox ? dataFoldersAround(environment, home) : dataFolders(environment, home)) {
        const QString clean = QDir::cleanPath(folder);
        if (QDir::isAbsolutePath(folder) && !folders.data.contains(clean))
            folders.data << clean;
    }
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (folders.locale.isEmpty())
            folders.locale = environment.value(QLatin1String(name));
    }
    folders.desktops = environment.value("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    return folders;
}

} // namespace velvane
