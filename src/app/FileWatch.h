#pragma once

#include "base/FileStamp.h"

#include <QFileSystemWatcher>
#include <QTimer>

namespace velvane {

/// Notices when a file has been changed, replaced or removed. Main thread only.
class FileWatch : public QObject {
    Q_OBJECT
public:
    explicit FileWatch(QObject *parent = nullptr);

    /// Watches this file instead, as it is now; none when empty.
    void setPath(const QString &path);
    /// Looks now, instead of a moment after the system has told of a change.
    void flush();

Q_SIGNALS:
    /// The file is another than when it was last looked at, or has gone.
    void touched();

private:
    void watch();

    QString m_path;
    std::optional<FileStamp> m_seen;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
};

} // namespace velvane
