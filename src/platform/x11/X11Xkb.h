#pragma once

#include "platform/x11/X11Connection.h"

namespace velvane {

/// Tells the server that this connection speaks of keyboards as XKB does.
void useXkb(const X11Connection &connection);

/// The keyboard's locked modifiers (Caps Lock), as a mask of real ones.
uint8_t lockedModifiers(const X11Connection &connection);

/// Locks or unlocks those modifiers of the keyboard that a mask of real modifiers names.
void lockModifiers(const X11Connection &connection, uint8_t modifiers, uint8_t locked);

} // namespace velvane
