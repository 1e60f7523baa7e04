#include "base/WholeFile.h"

#include "base/FileAttributes.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velvane::WholeFile {

namespace {

bool writeAll(QSaveFile &file, QByteArrayView bytes)
{
    // A disk that fills up takes a part first, and only the next call says what is wrong.
    while (!bytes.isEmpty()) {
        const qint64 taken = file.write(bytes.data(), bytes.size());
        if (taken <= 0)
            return false;
        bytes = bytes.sliced(taken);
    }
    return true;
}

// QSaveFile asks for this too, but goes on when the disk says that it has lost something.
int sync(const QSaveFile &file)
{
    while (fdatasync(file.handle()) != 0) {
        // Some file systems cannot tell.
        if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)
            return 0;
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

// A name that is not on the disk yet is lost with the power, or with a drive that is pulled out,
// when nobody holds the bytes elsewhere any more. Some file systems know nothing of this.
void syncName(const QString &path)
{
    const QString folder = QFileInfo(QFileInfo(path).canonicalFilePath()).path();
    const int opened =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return;
    ::fsync(opened);
    ::close(opened);
}

} // namespace

std::optional<QString> write(const QString &path, QByteArrayView bytes)
{
    if (isPlantedLink(path))
        return QCoreApplication::translate("WholeFile", "another user's link stands in its place");
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    // Without a buffer of its own: it would not notice that a full disk took only a part of that.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, bytes))
        return file.errorString();
    FileAttributes::copy(path, file.handle());
    if (const int error = sync(file))
        return qt_error_string(error);
    if (!file.commit())
        return file.errorString();
    syncName(path);
    return {};
}

bool isPlantedLink(const QString &path)
{
    // Of those that lead in a circle none is written through.
    constexpr int mostLinks = 40;
    QFileInfo info(QFileInfo(path).absoluteFilePath());
    for (int i = 0; i < mostLinks && info.isSymLink(); ++i) {
        struct stat link {};
        struct stat folder {};
        const QByteArray inFolder = QFile::encodeName(info.absolutePath());
        if (::lstat(QFile::encodeName(info.filePath()).constData(), &link) != 0
            || ::stat(inFolder.constData(), &folder) != 0)
            return false;
        const bool isShared = (folder.st_mode & S_ISVTX) && (folder.st_mode & S_IWOTH);
        if (isShared && link.st_uid != ::geteuid() && link.st_uid != folder.st_uid)
            return true;
        info.setFile(info.symLinkTarget());
    }
    return false;
}

} // namespace velvane::WholeFile
