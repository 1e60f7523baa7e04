#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace velvane::WholeFile {

/// Writes a file whole or not at all: the old one stays if anything fails.
///
/// A new file gets the mode that the user's mask leaves; an existing one keeps its own, and its
/// owner, group and attributes as far as this user may give them. A symbolic link is written
/// through, unless another user has planted it in a folder that all may write to. The bytes are on
/// the disk before they take the place of the old ones, and they have taken it there too when this
/// returns. Returns why it failed in words, e.g. "No space left on device", or nothing. Any thread.
std::optional<QString> write(const QString &path, QByteArrayView bytes);

/// Is this, or what it leads to, a symbolic link that neither this user nor the folder's owner has
/// made, in a folder like /tmp? The system itself follows none of these when it opens a file.
bool isPlantedLink(const QString &path);

} // namespace velvane::WholeFile
