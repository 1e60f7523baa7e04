#include "media/MovieFile.h"

#include "base/WholeFile.h"
#include "media/MovieError.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velvane {

namespace {

// Only files and links: what must never go is a device, which an administrator may delete.
void removeExisting(const QByteArray &path)
{
    struct stat about {};
    if (::lstat(path.constData(), &about) == 0
        && (S_ISREG(about.st_mode) || S_ISLNK(about.st_mode)))
        ::unlink(path.constData());
}

} // namespace

MovieFile::MovieFile(const QString &path, Existing existing)
{
    const QByteArray name = QFile::encodeName(path);
    if (existing == Existing::replace)
        removeExisting(name);
    // One that cannot be removed; the system itself follows none that comes now.
    if (existing == Existing::replace && WholeFile::isPlantedLink(path))
        throw MovieError(
            MovieError::Cause::file,
            QCoreApplication::translate("MovieFile", "another user's link stands in its place"));
    // Not blocking: a named pipe would otherwise wait for its reader.
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK;
    m_file =
        ::open(name.constData(), flags | (existing == Existing::refuse ? O_EXCL : O_TRUNC), 0666);
    if (m_file < 0)
        throw MovieError(MovieError::Cause::file, qt_error_string(errno));
    struct stat about {};
    m_isRegular = ::fstat(m_file, &about) == 0 && S_ISREG(about.st_mode);
    // Some file systems do not count names.
    m_hasName = m_isRegular && about.st_nlink > 0;
}

MovieFile::~MovieFile()
{
    close();
}

bool MovieFile::claim(qint64 end)
{
    if (hasFailed())
        return false;
    if (end <= m_claimed)
        return true;
    // A device has no room to claim; it says so when it is written to.
    if (m_isRegular) {
        int error = EINTR;
        while (error == EINTR)
            error = ::posix_fallocate(m_file, m_claimed, end - m_claimed);
        if (error) {
            fail(error);
            return false;
        }
    }
    m_claimed = end;
    return true;
}

void MovieFile::write(qint64 position, const quint8 *bytes, qint64 count)
{
    if (hasFailed())
        count = std::min(count, m_claimed - position);
    while (count > 0) {
        const ssize_t done = ::pwrite(m_file, bytes, size_t(count), position);
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0) {
            fail(done < 0 ? errno : EIO);
            return;
        }
        bytes += done;
        position += done;
        count -= done;
        m_size = std::max(m_size, position);
        m_claimed = std::max(m_claimed, position);
    }
}

qint64 MovieFile::read(qint64 position, quint8 *bytes, qint64 count)
{
    for (;;) {
        const ssize_t done = ::pread(m_file, bytes, size_t(count), position);
        if (done >= 0 || errno != EINTR)
            return done;
    }
}

void MovieFile::close()
{
    if (m_file < 0)
        return;
    if (m_isRegular && ::ftruncate(m_file, m_size) != 0)
        fail(errno);
    // What has no name any more is gone: removed, or replaced by another movie.
    struct stat about {};
    if (m_hasName && ::fstat(m_file, &about) == 0 && about.st_nlink == 0)
        fail(ENOENT);
    if (::close(m_file) != 0)
        fail(errno);
    m_file = -1;
}

QString MovieFile::failure() const
{
    return m_error ? qt_error_string(m_error) : QString();
}

void MovieFile::fail(int error)
{
    if (!m_error)
        m_error = error;
}

} // namespace velvane
