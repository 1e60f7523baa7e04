#pragma once

#include "platform/AppControl.h"

namespace velvane {

/// Which application is the active one, as the window manager tells by the root window's
/// _NET_ACTIVE_WINDOW.
namespace X11Activations {

/// Calls `activated` on the main thread whenever a window of another application than before
/// becomes the active one; no active window is no application. `apps` must outlive the token,
/// which is null without a server. Main thread.
Token watch(AppControl &apps, const QByteArray &display,
            std::function<void(const AppInfo &)> activated);

} // namespace X11Activations

} // namespace velvane
