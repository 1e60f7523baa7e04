#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>

#include <vector>

namespace velvane {

/// The picture of a window's _NET_WM_ICON that suits a side in pixels: the smallest that is at
/// least as large, else the largest. Null when it has none.
QImage windowIcon(const X11Connection &connection, xcb_window_t window, int side);

/// The same out of the property's numbers: pictures one after another, each width, height and
/// pixels; what is malformed ends the reading.
QImage pickIcon(const std::vector<uint32_t> &numbers, int side);

} // namespace velvane
