#pragma once

#include "platform/x11/X11Connection.h"

namespace velvane {

/// Does a compositing manager put this screen together?
bool hasCompositor(const X11Connection &connection);

} // namespace velvane
