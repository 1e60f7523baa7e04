#include "model/KeptSession.h"

#include "base/WholeFile.h"
#include "model/DocumentError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <limits>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velvane {

namespace {

const auto suffix = QStringLiteral(".kept");
const auto lockName = QStringLiteral("/lock");
const auto endedName = QStringLiteral("/ended");

// What is kept is nobody else's business.
constexpr mode_t ownerOnly = 0700;

int openLock(const QString &folder, int flags)
{
    constexpr mode_t mode = 0600;
    return ::open(QFile::encodeName(folder + lockName).constData(),
                  O_RDWR | O_CLOEXEC | O_NOFOLLOW | flags, mode);
}

/// Is the file still the one that this path names?
bool isInPlace(int file, const QString &path)
{
    struct stat open {};
    struct stat named {};
    return ::fstat(file, &open) == 0 && ::stat(QFile::encodeName(path).constData(), &named) == 0
           && open.st_ino == named.st_ino && open.st_dev == named.st_dev;
}

} // namespace

QString KeptSession::standardFolder()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/velvane/sessions");
}

KeptSession::KeptSession(const QString &folder)
    : m_path(folder + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces))
{}

KeptSession::~KeptSession()
{
    if (m_lock < 0)
        return;
    const bool isEmpty = QDir(m_path).entryList({u'*' + suffix}, QDir::Files).isEmpty();
    // With what a process left that was killed while it wrote.
    if (isEmpty)
        QDir(m_path).removeRecursively();
    ::close(m_lock);
}

std::vector<KeptSession::Ptr> KeptSession::left(const QString &folder)
{
    std::vector<Ptr> found;
    const QDir all(folder);
    const QStringList names =
        all.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed);
    for (const QString &name : names)
        if (Ptr session = adopt(all.filePath(name)))
            found.push_back(std::move(session));
    return found;
}

KeptSession::Ptr KeptSession::adopt(const QString &path)
{
    const int lock = openLock(path, 0);
    if (lock < 0)
        return {};
    // Another process may have adopted and emptied it meanwhile.
    if (::flock(lock, LOCK_EX | LOCK_NB) != 0 || !isInPlace(lock, path + lockName)) {
        ::close(lock);
        return {};
    }
    return Ptr(new KeptSession(path, lock));
}

bool KeptSession::isOnDisk() const
{
    return m_lock >= 0 && isInPlace(m_lock, m_path + lockName);
}

// Nobody sees the folder before it is locked: it comes into being under a hidden name. Who clears
// up the state folder may have removed it since.
std::optional<QString> KeptSession::begin()
{
    const std::lock_guard lock(m_mutex);
    if (isOnDisk())
        return {};
    if (m_lock >= 0)
        ::close(std::exchange(m_lock, -1));
    const QDir all(QFileInfo(m_path).path());
    const QString made = all.filePath(u'.' + QFileInfo(m_path).fileName());
    if (!QDir().mkpath(all.path()))
        return QCoreApplication::translate("KeptSession", "the folder %1 cannot be made")
            .arg(all.path());
    ::mkdir(QFile::encodeName(made).constData(), ownerOnly);
    m_lock = openLock(made, O_CREAT);
    if (m_lock >= 0) {
        ::flock(m_lock, LOCK_EX | LOCK_NB);
        if (::rename(QFile::encodeName(made).constData(), QFile::encodeName(m_path).constData())
            == 0)
            return {};
    }
    const QString reason = qt_error_string(errno);
    if (m_lock >= 0)
        ::close(std::exchange(m_lock, -1));
    QFile::remove(made + lockName);
    QDir().rmdir(made);
    return reason;
}

QString KeptSession::file(const QUuid &id) const
{
    return m_path + u'/' + id.toString(QUuid::WithoutBraces) + suffix;
}

QList<KeptDemo> KeptSession::demos() const
{
    QList<KeptDemo> found;
    const QDir folder(m_path);
    const QStringList names = folder.entryList({u'*' + suffix}, QDir::Files);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        try {
            KeptDemo demo = KeptDemo::from(file.readAll());
            if (QFileInfo(this->file(demo.id)).fileName() == name)
                found.append(std::move(demo));
        } catch (const DocumentError &error) {
            qWarning("%s: %s", qPrintable(file.fileName()), qPrintable(error.message()));
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const KeptDemo &a, const KeptDemo &b) { return a.kept < b.kept; });
    return found;
}

std::optional<QString> KeptSession::keep(const KeptDemo &demo, int turn)
{
    if (auto reason = begin())
        return reason;
    // The main thread may wait for the lock: what takes long, the disk above all, goes without.
    const QString written = m_path + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (auto reason = WholeFile::write(written, demo.contents()))
        return reason;
    const std::lock_guard lock(m_mutex);
    const auto known = m_turns.find(demo.id);
    if (known != m_turns.end() && known->second > turn) {
        QFile::remove(written);
        return {};
    }
    if (::rename(QFile::encodeName(written).constData(),
                 QFile::encodeName(file(demo.id)).constData())
        != 0) {
        const QString reason = qt_error_string(errno);
        QFile::remove(written);
        return reason;
    }
    m_turns[demo.id] = turn;
    return {};
}

void KeptSession::forget(const QUuid &id)
{
    const std::lock_guard lock(m_mutex);
    m_turns[id] = std::numeric_limits<int>::max();
    QFile::remove(file(id));
}

bool KeptSession::take(const QUuid &id, KeptSession &from)
{
    return !begin()
           && ::rename(QFile::encodeName(from.file(id)).constData(),
                       QFile::encodeName(file(id)).constData())
                  == 0;
}

bool KeptSession::hasEnded() const
{
    return QFile::exists(m_path + endedName);
}

void KeptSession::setEnded(bool ended)
{
    if (ended)
        WholeFile::write(m_path + endedName, {});
    else
        QFile::remove(m_path + endedName);
}

} // namespace velvane
