#pragma once

#include "base/KeyPosition.h"

#include <xcb/xproto.h>

namespace velvane {

/// X key codes and stored key numbers (base/KeyCode.h), both places on the keyboard.
namespace X11KeyCode {

/// X counts from 8 what the kernel counts from 0.
inline constexpr quint32 firstKey = 8;

/// The X code of a key with a stored number; nothing when no key has it or X cannot name it.
inline std::optional<xcb_keycode_t> ofStored(quint16 keyCode)
{
    const std::optional<quint32> evdev = KeyPosition::evdev(keyCode);
    if (!evdev || *evdev + firstKey > 255)
        return {};
    return static_cast<xcb_keycode_t>(*evdev + firstKey);
}

/// The stored number of an X key code; nothing when no ANSI keyboard has the key.
inline std::optional<quint16> stored(xcb_keycode_t key)
{
    return key < firstKey ? std::nullopt : KeyPosition::keyCode(key - firstKey);
}

} // namespace X11KeyCode

} // namespace velvane
