#pragma once

#include "platform/x11/capture/X11OwnWindows.h"

namespace velvane {

/// Where a stream's pictures come from.
struct X11CaptureSource {
    QByteArray display;
    /// What pictures leave out.
    X11OwnWindows ours;
    /// The wallpaper where nothing else names one; outlives the stream, or is none.
    xcb_pixmap_t wallpaper = XCB_NONE;
};

} // namespace velvane
