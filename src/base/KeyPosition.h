#pragma once

#include <QtGlobal>

#include <optional>

namespace velvane {

/// Keys by their place on the keyboard: stored key numbers (KeyCode.h) and the kernel's.
namespace KeyPosition {

/// The stored number of a key that the kernel calls `evdev` (linux/input-event-codes.h); X11's
/// key codes are these plus 8. Nothing for a key that no ANSI keyboard has.
std::optional<quint16> keyCode(quint32 evdev);

/// The way back.
std::optional<quint32> evdev(quint16 keyCode);

} // namespace KeyPosition

} // namespace velvane
