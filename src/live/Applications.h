#pragma once

#include "platform/Desktop.h"

namespace velvane::Live {

// Applications by the name that a step stores, or by the one in the user's language; capitals do
// not matter, and an empty name is no name. What cannot be found or done is skipped silently.

/// Brings a running application's windows to the front, or else starts the installed one. White
/// space around the name does not count. Any thread.
void activate(Desktop &desktop, const QString &appNamed);

/// Centres a running application's main window, or else its frontmost one, in the visible area of
/// the main display. Its size stays. Any thread.
void centerWindow(Desktop &desktop, const QString &ofAppNamed);

/// Takes the windows of all regular applications but one off the screen, ours always. White space
/// around the name does not count. Any thread.
void hideOtherApps(Desktop &desktop, const QString &except);

/// Opens the page on which a live run's permission is granted. Main thread.
void openAccessibilitySettings(Desktop &desktop);

/// Brings a running application to the front and, a moment later, us in front of it. Main thread.
QCoro::Task<> raiseBehindUs(Desktop &desktop, QString appNamed);

} // namespace velvane::Live
