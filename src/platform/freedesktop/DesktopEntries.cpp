#include "platform/freedesktop/DesktopEntries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

namespace velvane {

namespace {

// Deeper folders and more files than any system has: a bound for loops of links and for accidents.
constexpr int deepest = 4;
constexpr qsizetype mostFiles = 20000;
constexpr qint64 largestRead = 1024 * 1024 + 1;

// Walks one applications folder.
class Reader {
public:
    Reader(QString locale, DesktopEntries::List &list, QHash<QString, QDateTime> &seen)
        : m_locale(std::move(locale))
        , m_list(list)
        , m_seen(seen)
    {}

    void readFolder(const QString &folder, const QString &prefix = {}, int depth = 0)
    {
        const QDir dir(folder);
        m_seen.insert(folder, QFileInfo(folder).lastModified());
        const auto filter = QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable;
        for (const QFileInfo &item : dir.entryInfoList(filter, QDir::Name)) {
            if (item.isDir() && depth < deepest)
                readFolder(item.filePath(), prefix + item.fileName() + "-", depth + 1);
            else if (item.isFile() && item.fileName().endsWith(QLatin1String(".desktop")))
                readFile(item, prefix + item.completeBaseName());
        }
    }

private:
    void readFile(const QFileInfo &item, const QString &id)
    {
        if (m_ids.contains(id) || m_ids.size() >= mostFiles)
            return;
        m_ids.insert(id);
        QFile file(item.filePath());
        if (!file.open(QFile::ReadOnly))
            return;
        std::optional<DesktopEntry> entry = parseDesktopEntry(file.read(largestRead), m_locale);
        if (!entry || entry->hidden)
            return;
        entry->id = id;
        entry->path = item.filePath();
        m_list.push_back(std::move(*entry));
    }

    const QString m_locale;
    DesktopEntries::List &m_list;
    QHash<QString, QDateTime> &m_seen;
    QSet<QString> m_ids;
};

// Has it something to start, and does TryExec, if there is one, name a program that exists?
bool canStart(const DesktopEntry &entry, const SessionFolders &folders)
{
    if (programOf(entry.exec).isEmpty() && !entry.dBusActivatable)
        return false;
    return entry.tryExec.isEmpty() || folders.programsAreHidden
           || !QStandardPaths::findExecutable(entry.tryExec).isEmpty();
}

} // namespace

DesktopEntries::DesktopEntries(SessionFolders folders) : m_folders(std::move(folders)) {}

std::shared_ptr<const DesktopEntries::List> DesktopEntries::all()
{
    const std::lock_guard lock(m_mutex);
    if (!m_list || changed())
        read();
    return m_list;
}

DesktopEntries::List DesktopEntries::shown()
{
    List list = *all();
    std::erase_if(list, [&](const DesktopEntry &entry) {
        return !isShown(entry, m_folders.desktops) || !canStart(entry, m_folders);
    });
    return list;
}

bool DesktopEntries::changed() const
{
    // A folder that had changed just before it was read may have changed again since, within the
    // coarse steps of its time.
    const QDateTime settled = m_readAt.addSecs(-1);
    for (auto seen = m_seen.constBegin(); seen != m_seen.constEnd(); ++seen) {
        const QDateTime now = QFileInfo(seen.key()).lastModified();
        if (now != seen.value() || (now.isValid() && now > settled))
            return true;
    }
    return false;
}

void DesktopEntries::read()
{
    const auto list = std::make_shared<List>();
    m_seen.clear();
    m_readAt = QDateTime::currentDateTime();
    Reader reader(m_folders.locale, *list, m_seen);
    for (const QString &folder : m_folders.data)
        reader.readFolder(folder + "/applications");
    m_list = list;
}

} // namespace velvane
