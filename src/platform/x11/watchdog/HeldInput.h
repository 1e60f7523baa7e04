#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

namespace velvane {

/// What posting has done to the X server that must not outlive it.
///
/// Sent whole over a local socket, from the program to its watchdog, before each change that adds
/// to it and after each that takes away.
struct HeldInput {
    using Keys = std::array<std::uint8_t, 32>;

    /// A bit for each key code that is pressed.
    Keys pressed{};
    /// A bit for each key code without symbols that has been lent some.
    Keys lent{};
    /// A bit for each pressed pointer button, by its number (1 to 7).
    std::uint8_t buttons = 0;
    /// The locked modifiers (Caps Lock) that were unlocked and are to be locked again.
    std::uint8_t unlocked = 0;

    bool operator==(const HeldInput &) const = default;

    static bool has(const Keys &keys, std::uint8_t code)
    {
        return (keys[code / 8] >> (code % 8) & 1) != 0;
    }

    static void set(Keys &keys, std::uint8_t code, bool on)
    {
        const auto bit = static_cast<std::uint8_t>(1U << (code % 8));
        keys[code / 8] =
            static_cast<std::uint8_t>(on ? keys[code / 8] | bit : keys[code / 8] & ~bit);
    }
};

static_assert(std::is_trivially_copyable_v<HeldInput>);

/// The first byte that a watchdog sends: it is ready.
inline constexpr char watchdogReady = 'r';

} // namespace velvane
