#include "app/FileWatch.h"

#include <QFileInfo>

namespace velvane {

namespace {

// Programs that save in several writes, or by replacing the file, are at rest after this.
constexpr auto rest = std::chrono::milliseconds(300);

} // namespace

FileWatch::FileWatch(QObject *parent) : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    connect(&m_rest, &QTimer::timeout, this, &FileWatch::flush);
    const auto wait = [this] {
        if (!m_rest.isActive())
            m_rest.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
}

void FileWatch::setPath(const QString &path)
{
    m_rest.stop();
    m_path = path;
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_seen = FileStamp::of(path);
    watch();
}

void FileWatch::flush()
{
    m_rest.stop();
    watch();
    const auto now = FileStamp::of(m_path);
    if (now == m_seen)
        return;
    m_seen = now;
    Q_EMIT touched();
}

void FileWatch::watch()
{
    // A replaced file is another one to the system, so it is watched anew; the folder tells when
    // a removed one comes back.
    if (m_path.isEmpty())
        return;
    const QFileInfo file(m_path);
    m_watcher.addPath(file.absolutePath());
    if (file.exists())
        m_watcher.addPath(m_path);
}

} // namespace velvane
