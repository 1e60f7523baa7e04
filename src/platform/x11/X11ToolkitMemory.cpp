#include "platform/ToolkitMemory.h"

#include <QGuiApplication>

#include <X11/Xlib.h>

namespace velvane {

void returnToolkitMemory()
{
    const auto *x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    // Without a display of its own the toolkit has the interface, but nothing behind it.
    Display *display = x11 ? x11->display() : nullptr;
    // Xlib drops its notes of earlier requests when it waits for an answer, which the toolkit never
    // has it do: it reads by XCB.
    if (display)
        XSync(display, False);
}

} // namespace velvane
