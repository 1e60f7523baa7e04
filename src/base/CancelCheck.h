#pragma once

#include <functional>

namespace velvane {

/// Has the user cancelled? Called often and from any thread.
using CancelCheck = std::function<bool()>;

} // namespace velvane
