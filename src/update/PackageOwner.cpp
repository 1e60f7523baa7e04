#include "update/PackageOwner.h"

#include <QCoreApplication>
#include <QDir>

namespace velvane::PackageOwner {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PackageOwner", text);
}

// The names that a package may have installed the file under: /bin is /usr/bin nowadays, and old
// packages still say the former.
QList<QByteArray> lines(const QString &executable)
{
    QList<QByteArray> result{'\n' + QFile::encodeName(executable) + '\n'};
    const QString usr = QStringLiteral("/usr");
    if (executable.startsWith(usr + u'/'))
        result << '\n' + QFile::encodeName(executable.sliced(usr.size())) + '\n';
    return result;
}

bool lists(const QString &listFile, const QList<QByteArray> &lines)
{
    QFile file(listFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = '\n' + file.readAll() + '\n';
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QByteArray &line) { return content.contains(line); });
}

bool isInstalledByDpkg(const QString &executable, const QDir &root)
{
    const QDir info(root.filePath(QStringLiteral("var/lib/dpkg/info")));
    QStringList names = info.entryList({QStringLiteral("*.list")}, QDir::Files);
    // The likely ones first.
    std::stable_partition(names.begin(), names.end(), [](const QString &name) {
        return name.startsWith(QLatin1String("velvane"));
    });
    const QList<QByteArray> wanted = lines(executable);
    return std::any_of(names.begin(), names.end(),
                       [&](const QString &name) { return lists(info.filePath(name), wanted); });
}

} // namespace

Owner of(const QString &executable, const QString &root)
{
    const QDir system(root);
    if (system.exists(QStringLiteral(".flatpak-info")))
        return Owner::flatpak;
    return isInstalledByDpkg(executable, system) ? Owner::packageManager : Owner::none;
}

QString explanation(Owner owner)
{
    switch (owner) {
    case Owner::none:
        break;
    case Owner::flatpak:
        return tr("Velvane was installed as a Flatpak, which brings its updates.");
    case Owner::packageManager:
        return tr("Velvane was installed by the package manager, which brings its updates.");
    }
    return {};
}

} // namespace velvane::PackageOwner
