#pragma once

#include "platform/x11/watchdog/HeldInput.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include <xcb/xcb.h>

namespace velvane {

/// What a key yields: without and with Shift. No symbols at all where both are 0.
struct KeySymbols {
    xcb_keycode_t key = 0;
    std::array<xcb_keysym_t, 2> symbols{};

    bool isEmpty() const { return symbols == std::array<xcb_keysym_t, 2>{}; }
};

/// Changes what keys of the keyboard yield, whatever its layout, and returns once the server has
/// done it. False when it has not.
///
/// All in one request: every program is told of each, and window managers then bind all their keys
/// anew, some of them for a tenth of a second. `keys` are in ascending order. The connection has
/// said that it uses XKB.
bool changeSymbols(xcb_connection_t *connection, std::span<const KeySymbols> keys);

/// The keys that were lent symbols, without any: what takes the loans back.
std::vector<KeySymbols> lentKeys(const HeldInput &held);

} // namespace velvane
