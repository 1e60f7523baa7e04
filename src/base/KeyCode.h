#pragma once

#include <QtGlobal>

namespace velvane {

/// Stored key numbers. They name a position on an ANSI keyboard, not a character.
namespace KeyCode {
inline constexpr quint16 returnKey = 36;
inline constexpr quint16 tab = 48;
inline constexpr quint16 space = 49;
inline constexpr quint16 backspace = 51;
inline constexpr quint16 escape = 53;
inline constexpr quint16 keypadEnter = 76;
inline constexpr quint16 f5 = 96;
inline constexpr quint16 f6 = 97;
inline constexpr quint16 f7 = 98;
inline constexpr quint16 f3 = 99;
inline constexpr quint16 f8 = 100;
inline constexpr quint16 f9 = 101;
inline constexpr quint16 f11 = 103;
inline constexpr quint16 f10 = 109;
inline constexpr quint16 f12 = 111;
inline constexpr quint16 home = 115;
inline constexpr quint16 pageUp = 116;
inline constexpr quint16 forwardDelete = 117;
inline constexpr quint16 f4 = 118;
inline constexpr quint16 end = 119;
inline constexpr quint16 f2 = 120;
inline constexpr quint16 pageDown = 121;
inline constexpr quint16 f1 = 122;
inline constexpr quint16 leftArrow = 123;
inline constexpr quint16 rightArrow = 124;
inline constexpr quint16 downArrow = 125;
inline constexpr quint16 upArrow = 126;
} // namespace KeyCode

/// Stored modifier bits of a shortcut.
namespace Modifier {
inline constexpr quint64 shift = 0x20000;
inline constexpr quint64 control = 0x40000;
inline constexpr quint64 option = 0x80000;
inline constexpr quint64 command = 0x100000;
} // namespace Modifier

} // namespace velvane
