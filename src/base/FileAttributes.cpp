#include "base/FileAttributes.h"

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velvane::FileAttributes {

namespace {

// Attributes may be 64 KiB long, and so may the list of their names.
constexpr size_t longest = 64 * 1024;

void copyOwner(int from, int to)
{
    constexpr uid_t same = -1;
    struct stat about {};
    // Only root may give a file away; to a group of one's own everybody may.
    if (::fstat(from, &about) == 0 && ::fchown(to, about.st_uid, about.st_gid) != 0)
        std::ignore = ::fchown(to, same, about.st_gid);
}

void copyExtended(int from, int to)
{
    QByteArray names(longest, '\0');
    const ssize_t length = ::flistxattr(from, names.data(), longest);
    QByteArray value(longest, '\0');
    for (ssize_t at = 0; at < length; at += qsizetype(qstrlen(names.constData() + at)) + 1) {
        const char *name = names.constData() + at;
        const ssize_t size = ::fgetxattr(from, name, value.data(), longest);
        if (size >= 0)
            ::fsetxattr(to, name, value.constData(), size_t(size), 0);
    }
}

} // namespace

void copy(const QString &from, int to)
{
    const int file = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return;
    copyOwner(file, to);
    copyExtended(file, to);
    ::close(file);
}

} // namespace velvane::FileAttributes
