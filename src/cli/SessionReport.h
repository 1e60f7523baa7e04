#pragma once

#include "platform/Desktop.h"

namespace velvane::cli {

/// What a session can and cannot do, a fact for each capability, in the order in which a person
/// reads them. Main thread; needs the application object.
std::vector<DesktopFact> sessionReport(Desktop &desktop);

/// The kind of session, from the environment's XDG_SESSION_TYPE and XDG_CURRENT_DESKTOP.
DesktopFact sessionKind(const QString &type, const QString &desktop);

/// May recordings be made in this folder, which need not exist yet, and how much room is there?
DesktopFact movieFolder(const QString &folder);

/// The same for a folder that can be written to, with so many bytes free; negative: not known.
DesktopFact roomForMovies(const QString &folder, qint64 bytes);

/// Texts are read and written in this character set, an IANA name.
DesktopFact locale(const QString &name, const QByteArray &characterSet);

} // namespace velvane::cli
