#include "base/FolderLock.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace velvane {

namespace {

constexpr auto interval = std::chrono::milliseconds(5);

int openFolder(const QString &file)
{
    const QFileInfo info(file);
    const QString folder =
        info.exists() ? QFileInfo(info.canonicalFilePath()).path() : info.absolutePath();
    return open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

} // namespace

FolderLock::State FolderLock::lock(int folder, Seconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (folder >= 0) {
        if (flock(folder, LOCK_EX | LOCK_NB) == 0)
            return State::ours;
        if (errno != EWOULDBLOCK && errno != EINTR)
            break;
        if (std::chrono::steady_clock::now() > end)
            return State::others;
        std::this_thread::sleep_for(interval);
    }
    return State::nobodys;
}

FolderLock::FolderLock(const QString &file, Seconds patience)
    : m_folder(openFolder(file))
    , m_state(lock(m_folder, patience))
{}

FolderLock::~FolderLock()
{
    if (m_folder >= 0)
        close(m_folder);
}

std::optional<QString> FolderLock::refusal() const
{
    if (m_state != State::others)
        return {};
    return QCoreApplication::translate(
        "FolderLock", "cannot be written: another Velvane is writing in its folder");
}

} // namespace velvane
