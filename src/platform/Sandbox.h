#pragma once

#include <QStringList>

namespace velvane {

/// The Flatpak that this program may run in. Any thread.
///
/// Inside, processes have numbers of their own, the session's files are below /run/host, and a
/// program is started in the session only by asking for it.
namespace Sandbox {

/// Are we in one?
bool isAround();

/// Where a file of the session, such as /usr/share, is seen from inside.
QString seenFromInside(const QString &path);

/// Would a file there be the sandbox's own, unseen outside and gone with it? Not so outside of one,
/// nor for a file that is there.
bool isOutOfReach(const QString &path);

/// What a user types in a folder so that we reach its files; the rest of the command line follows.
QString commandThatReaches();

/// The command that starts a command in the session. It fails unless the user has allowed it.
QStringList inSession(const QStringList &command, const QString &folder);

} // namespace Sandbox

} // namespace velvane
