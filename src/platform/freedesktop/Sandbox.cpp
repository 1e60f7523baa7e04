#include "platform/Sandbox.h"

#include <QFileInfo>

#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

namespace velvane {

namespace {

// Of the mount that a file is on: folders of one disk may be given one by one.
std::optional<quint64> mountOf(const QString &path)
{
    struct statx about {};
    const QByteArray name = QFile::encodeName(path);
    if (::statx(AT_FDCWD, name.constData(), 0, STATX_MNT_ID, &about) != 0
        || !(about.stx_mask & STATX_MNT_ID))
        return {};
    return about.stx_mnt_id;
}

} // namespace

bool Sandbox::isAround()
{
    static const bool is = QFile::exists(QStringLiteral("/.flatpak-info"));
    return is;
}

QString Sandbox::seenFromInside(const QString &path)
{
    return QStringLiteral("/run/host") + path;
}

bool Sandbox::isOutOfReach(const QString &path)
{
    QFileInfo file(path);
    if (!isAround() || file.exists())
        return false;
    while (!file.exists() && !file.isRoot())
        file.setFile(file.absolutePath());
    const std::optional<quint64> mount = mountOf(file.filePath());
    return mount && (mount == mountOf("/") || mount == mountOf("/tmp"));
}

QString Sandbox::commandThatReaches()
{
    return QStringLiteral("flatpak run --filesystem=\"$PWD\" com.orvikel.velvane …");
}

QStringList Sandbox::inSession(const QStringList &command, const QString &folder)
{
    // The sandbox would last as long as what is started.
    return QStringList{"flatpak-spawn", "--host", "--directory=" + folder, "setsid", "--fork"}
           + command;
}

} // namespace velvane
