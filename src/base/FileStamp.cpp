#include "base/FileStamp.h"

#include <QFile>

#include <sys/stat.h>

namespace velvane {

std::optional<FileStamp> FileStamp::of(const QString &path)
{
    struct stat info {};
    if (path.isEmpty() || stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    constexpr qint64 nanosecondsPerSecond = 1'000'000'000;
    return FileStamp{info.st_dev, info.st_ino, info.st_size,
                     info.st_mtim.tv_sec * nanosecondsPerSecond + info.st_mtim.tv_nsec};
}

bool FileStamp::isSameFile(const QString &a, const QString &b)
{
    const auto first = of(a);
    const auto second = of(b);
    return first && second && first->device == second->device && first->inode == second->inode;
}

} // namespace velvane
