#pragma once

#include "platform/DesktopFact.h"
#include "platform/x11/X11Connection.h"

#include <vector>

namespace velvane {

/// What an X server has of what this program makes use of. Any thread.
namespace X11Facts {

/// One fact for each group of extensions, and the keyboard. Nothing without a server.
std::vector<DesktopFact> of(const X11Connection &connection);

} // namespace X11Facts

} // namespace velvane
