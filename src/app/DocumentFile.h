#pragma once

#include "base/FileStamp.h"

#include <QString>

#include <optional>

namespace velvane {

struct ProjectFile;

/// The file of an open demo, as it was when it was last read or written by us.
class DocumentFile {
public:
    /// What others have done to the file since.
    enum class Fate { unchanged, changed, gone };

    /// Why the file could not be written.
    struct Refusal {
        /// Others have changed it since; it was left to them.
        bool isChanged = false;
        /// In words, e.g. "cannot be written: No space left on device"; empty when it is changed.
        QString reason;
    };

    /// No file: the demo has never been saved.
    DocumentFile() = default;
    /// Take it before reading the file, so that a change while reading is noticed.
    explicit DocumentFile(const QString &path);
    /// As an earlier process last read or wrote it: nothing when it had no such file. An empty path
    /// is no file.
    DocumentFile(const QString &path, const std::optional<FileStamp> &stamp);

    bool isEmpty() const { return m_path.isEmpty(); }
    const QString &path() const { return m_path; }
    const std::optional<FileStamp> &stamp() const { return m_stamp; }
    Fate fate() const;

    /// Writes the demo, whole or not at all, and only when others have not changed the file since:
    /// no other process of ours comes between that question and the answer. Then this is the file
    /// as it was written.
    std::optional<Refusal> write(const ProjectFile &demo);

    /// Is this the same file, by another name or through a link?
    bool isSameAs(const QString &path) const;

private:
    QString m_path;
    std::optional<FileStamp> m_stamp;
};

} // namespace velvane
