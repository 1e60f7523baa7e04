#include "platform/Desktop.h"

#include "platform/x11/X11Desktop.h"

namespace velvane {

std::unique_ptr<Desktop> Desktop::open()
{
    return std::make_unique<X11Desktop>(QProcessEnvironment::systemEnvironment());
}

} // namespace velvane
