#pragma once

#include <QString>

#include <variant>

class QKeyEvent;

namespace velvane {

/// A key with the modifiers held, as a shortcut step stores it.
struct KeyCombination {
    /// Position on an ANSI keyboard (base/KeyCode.h).
    quint16 keyCode = 0;
    /// Modifier bits.
    quint64 modifiers = 0;
    /// The key's character in upper case, the modifiers but Shift left out; empty when it has none.
    QString characters;

    bool operator==(const KeyCombination &) const = default;
};

/// What a press of a key means to a control that waits for one combination.
namespace KeyCapture {

/// A modifier alone, a repeat, or a key without a number: the control goes on waiting.
struct Ignored {};
/// Escape, whatever is held: the control stops and records nothing.
struct Cancelled {};
/// The control stops and records it.
using Outcome = std::variant<Ignored, Cancelled, KeyCombination>;

/// `event` is a key press. Ctrl is Control, Super is Command, Alt is Option.
Outcome pressed(const QKeyEvent &event);

} // namespace KeyCapture

} // namespace velvane
