#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace velvane {

/// Opaque bytes, kept in a demo, that find its recorded movie again. They may come from anywhere:
/// only regular files that are named like a movie are ever found. Main thread or any other.
namespace Bookmark {

/// Where recordings are put: Movies/Velvane in the user's home.
QString recordingsFolder();

/// Of a movie file; nothing when there is no such file.
std::optional<QByteArray> of(const QString &path);

/// The file's absolute path now, also when it was renamed in its folder or moved to `recordings`;
/// nothing when it is not found or the bytes are no bookmark. A file of another identity that has
/// taken the place, such as a copy put back, is found last.
std::optional<QString> resolve(const QByteArray &bookmark,
                               const QString &recordings = recordingsFolder());

} // namespace Bookmark

} // namespace velvane
