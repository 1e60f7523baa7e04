#pragma once

#include "platform/x11/X11Connection.h"

namespace velvane {

/// Returns once the window manager has done all that it was asked on any connection before this
/// call and the windows have come to rest.
void settled(X11Connection &connection);

} // namespace velvane
