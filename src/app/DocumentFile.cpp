#include "app/DocumentFile.h"

#include "base/FolderLock.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"

#include <QFileInfo>

namespace velvane {

DocumentFile::DocumentFile(const QString &path)
    : m_path(QFileInfo(path).absoluteFilePath())
    , m_stamp(FileStamp::of(m_path))
{}

DocumentFile::DocumentFile(const QString &path, const std::optional<FileStamp> &stamp)
    : m_path(path)
    , m_stamp(stamp)
{
    // A file system may have another device number each time that it is mounted.
    const auto now = FileStamp::of(path);
    if (now && m_stamp)
        m_stamp->device = now->device;
}

DocumentFile::Fate DocumentFile::fate() const
{
    const auto now = FileStamp::of(m_path);
    if (now == m_stamp)
        return Fate::unchanged;
    return now ? Fate::changed : Fate::gone;
}

std::optional<DocumentFile::Refusal> DocumentFile::write(const ProjectFile &demo)
{
    const FolderLock lock(m_path);
    if (const auto reason = lock.refusal())
        return Refusal{.reason = *reason};
    if (fate() == Fate::changed)
        return Refusal{.isChanged = true};
    if (const auto reason = DemoDocument::write(demo, m_path))
        return Refusal{.reason = *reason};
    m_stamp = FileStamp::of(m_path);
    return {};
}

bool DocumentFile::isSameAs(const QString &path) const
{
    if (isEmpty() || path.isEmpty())
        return false;
    return QFileInfo(path).absoluteFilePath() == m_path || FileStamp::isSameFile(m_path, path);
}

} // namespace velvane
