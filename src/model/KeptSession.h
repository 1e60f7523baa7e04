#pragma once

#include "model/KeptDemo.h"

#include <QFile>

#include <map>
#include <mutex>

namespace velvane {

/// The demos that one process keeps, in a folder of its own that is locked while the process lives.
///
/// A folder that nobody has locked was left by a process that is gone: it crashed, was killed, or
/// has ended with setEnded() because the desktop session did. Each demo is one file, put in place
/// in one step.
class KeptSession {
public:
    using Ptr = std::unique_ptr<KeptSession>;

    /// $XDG_STATE_HOME/velvane/sessions.
    static QString standardFolder();

    /// A new one among others in this folder; the first keep() makes it on the disk.
    explicit KeptSession(const QString &folder);
    /// Those in this folder that processes have left, oldest first; they are ours while they live.
    static std::vector<Ptr> left(const QString &folder);
    /// Lets go; what is kept stays. A folder in which nothing is kept goes.
    ~KeptSession();
    Q_DISABLE_COPY_MOVE(KeptSession)

    /// What is kept, by time. What cannot be read is left out, and left where it is.
    QList<KeptDemo> demos() const;

    /// Keeps a demo instead of what was kept under its id. Of several the one with the highest
    /// `turn` stays, whichever comes last. Returns why it failed. Any thread.
    std::optional<QString> keep(const KeptDemo &demo, int turn);
    /// Is anything kept under this id? Others may have removed it.
    bool holds(const QUuid &id) const { return QFile::exists(file(id)); }
    /// Removes a demo; one of this id is never kept again. Does not wait for what is being written.
    /// Any thread.
    void forget(const QUuid &id);
    /// Takes over a demo from one that was left.
    bool take(const QUuid &id, KeptSession &from);

    /// Has the process ended in order, its demos to be opened again without a question?
    bool hasEnded() const;
    void setEnded(bool ended);

private:
    KeptSession(const QString &path, int lock) : m_path(path), m_lock(lock) {}

    static Ptr adopt(const QString &path);
    QString file(const QUuid &id) const;
    bool isOnDisk() const;
    std::optional<QString> begin();

    const QString m_path;
    /// Of the file "lock" in the folder; -1 while that has not been on the disk.
    int m_lock = -1;
    /// Guards the lock and the turns; nobody holds it while bytes go to the disk.
    std::mutex m_mutex;
    std::map<QUuid, int> m_turns;
};

} // namespace velvane
