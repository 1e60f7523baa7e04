#include "capture/Bookmark.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

namespace velvane::Bookmark {

namespace {

constexpr qsizetype greatestBytes = 16 * 1024;
// A folder of so many files is searched no further.
constexpr int mostFiles = 10'000;

// Lines: what this is, three numbers, the path.
const QByteArray kind = "velvane recording";

/// A file's name and what stays the same when it is renamed.
struct Identity {
    QString path;
    qint64 device = 0;
    qint64 inode = 0;
    qint64 size = 0; ///< bytes

    bool isSameFile(const Identity &other) const
    {
        return device == other.device && inode == other.inode;
    }
};

bool isNamedLikeMovie(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == "mp4" || suffix == "m4v" || suffix == "mov" || suffix == "mkv"
           || suffix == "webm";
}

std::optional<Identity> identify(const QString &path)
{
    struct stat about {};
    if (!isNamedLikeMovie(path) || ::stat(QFile::encodeName(path).constData(), &about) != 0
        || !S_ISREG(about.st_mode))
        return {};
    return Identity{path, qint64(about.st_dev), qint64(about.st_ino), qint64(about.st_size)};
}

std::optional<Identity> read(const QByteArray &bookmark)
{
    constexpr int lineCount = 5;
    if (bookmark.size() > greatestBytes || bookmark.contains('\0'))
        return {};
    const QList<QByteArray> lines = bookmark.split('\n');
    if (lines.size() < lineCount || lines[0] != kind)
        return {};
    const QByteArray path = lines.mid(lineCount - 1).join('\n');
    const Identity file{QString::fromUtf8(path), lines[1].toLongLong(), lines[2].toLongLong(),
                        lines[3].toLongLong()};
    if (!QDir::isAbsolutePath(file.path) || !isNamedLikeMovie(file.path))
        return {};
    return file;
}

// The size too: a file system gives a deleted file's number to the next one.
std::optional<QString> findIn(const QString &folder, const Identity &wanted)
{
    QDirIterator files(folder, QDir::Files);
    for (int n = 0; n < mostFiles && files.hasNext(); ++n) {
        const std::optional<Identity> found = identify(files.next());
        if (found && found->isSameFile(wanted) && found->size == wanted.size)
            return found->path;
    }
    return {};
}

} // namespace

QString recordingsFolder()
{
    return QDir::homePath() + QStringLiteral("/Movies/Velvane");
}

std::optional<QByteArray> of(const QString &path)
{
    const std::optional<Identity> file = identify(QFileInfo(path).absoluteFilePath());
    if (!file)
        return {};
    return kind + '\n' + QByteArray::number(file->device) + '\n' + QByteArray::number(file->inode)
           + '\n' + QByteArray::number(file->size) + '\n' + file->path.toUtf8();
}

std::optional<QString> resolve(const QByteArray &bookmark, const QString &recordings)
{
    const std::optional<Identity> wanted = read(bookmark);
    if (!wanted)
        return {};
    const std::optional<Identity> inPlace = identify(wanted->path);
    if (inPlace && inPlace->isSameFile(*wanted))
        return inPlace->path;
    const QFileInfo place(wanted->path);
    for (const QString &folder : {place.absolutePath(), recordings})
        if (const auto found = findIn(folder, *wanted))
            return found;
    if (inPlace)
        return inPlace->path;
    // Moved from another file system it has a number of its own.
    const std::optional<Identity> moved = identify(recordings + '/' + place.fileName());
    return moved && moved->size == wanted->size ? std::optional(moved->path) : std::nullopt;
}

} // namespace velvane::Bookmark
