#pragma once

#include <QString>

#include <optional>

namespace velvane {

/// Tells files, and two contents of one path, apart without reading them.
struct FileStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;     ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970

    /// Of the file itself, symbolic links followed; nothing when there is none.
    static std::optional<FileStamp> of(const QString &path);

    /// Do both paths lead to one existing file, by whatever names and links?
    static bool isSameFile(const QString &a, const QString &b);

    bool operator==(const FileStamp &) const = default;
};

} // namespace velvane
