#pragma once

#include "platform/DesktopShell.h"

namespace velvane {

/// Opens a page in the user's browser; false when that cannot be done. The session's shell knows
/// best; without one Qt asks the desktop itself. Main thread only.
bool openPage(DesktopShell &shell, const QUrl &page);

} // namespace velvane
