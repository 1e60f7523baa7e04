#pragma once

#include "model/Project.h"

#include <memory>

namespace velvane {

struct ProjectFile;

/// A demo and its file.
class DemoDocument {
public:
    /// A new demo.
    DemoDocument();
    /// The demo of a record. A background that is no picture is left out.
    explicit DemoDocument(const ProjectFile &file);

    /// The demo of a file; throws as readFile() does.
    static std::unique_ptr<DemoDocument> read(const QString &path);

    Project &project() { return *m_project; }
    const Project &project() const { return *m_project; }
    ProjectFile snapshot() const;
    /// The format version that the file named; 1 for a new demo. Only for showing: any is read.
    qint64 fileVersion() const { return m_fileVersion; }
    /// Did the file hold a background that is no picture? The next save leaves it out.
    bool hasLostBackground() const { return m_hasLostBackground; }

    /// The record of a file; throws DocumentError for what is no regular file, cannot be read or
    /// holds no demo. The message does not name the file.
    static ProjectFile readFile(const QString &path);
    /// The record of a file's bytes (binary or XML property list); throws DocumentError.
    static ProjectFile fileOf(const QByteArray &contents);

    /// The file's bytes, always a binary property list.
    static QByteArray contents(const ProjectFile &file);

    /// Writes a file whole or not at all: the old one stays if anything fails. Keeps an existing
    /// file's mode and writes through a symbolic link. Returns why it failed, or nothing.
    static std::optional<QString> write(const ProjectFile &file, const QString &path);

private:
    std::unique_ptr<Project> m_project;
    qint64 m_fileVersion = 1;
    bool m_hasLostBackground = false;
};

} // namespace velvane
