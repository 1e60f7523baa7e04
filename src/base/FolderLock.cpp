#include "base/FolderLock.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace velvane {

namespace {

// Saving a demo with a large backdrop takes less.
constexpr auto patience = std::chrono::seconds(2);
constexpr auto interval = std::chrono::milliseconds(5);

int openFolder(const QString &file)
{
    const QFileInfo info(file);
    const QString folder =
        info.exists() ? QFileInfo(info.canonicalFilePath()).path() : info.absolutePath();
    return open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool lock(int folder)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(folder, LOCK_EX | LOCK_NB) != 0) {
        const bool isTaken = errno == EWOULDBLOCK || errno == EINTR;
        if (!isTaken || std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(interval);
    }
    return true;
}

} // namespace

FolderLock::FolderLock(const QString &file)
    : m_folder(openFolder(file))
    , m_isLocked(m_folder >= 0 && lock(m_folder))
{}

FolderLock::~FolderLock()
{
    if (m_folder >= 0)
        close(m_folder);
}

} // namespace velvane
