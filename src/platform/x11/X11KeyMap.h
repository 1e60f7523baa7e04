#pragma once

#include "platform/x11/X11Connection.h"

#include <QHash>

#include <optional>
#include <vector>

#include <xkbcommon/xkbcommon.h>

namespace velvane {

/// Keys to press in order, and to release in the opposite order.
using KeyChord = std::vector<xcb_keycode_t>;

/// What the keys of a layout yield: a copy, as the keyboard was when it was read.
class X11KeyMap {
public:
    /// The keyboard's present layout. Nothing when the server does not tell it.
    static std::optional<X11KeyMap> read(const X11Connection &connection);

    /// Reads one layout of a map while modifiers (a mask of the map's) are locked.
    X11KeyMap(xkb_keymap *map, xkb_layout_index_t layout, xkb_mod_mask_t locked);

    /// The keys that yield a symbol, with Shift, with the third level's key or both where it takes
    /// them. Nothing when no key does: keypads do not count, since programs part them.
    std::optional<KeyChord> chord(xkb_keysym_t symbol) const;

    /// The keys that hold the Modifier bits: Option is Alt, Command is Super.
    KeyChord modifierKeys(quint64 modifiers) const;

    xcb_keycode_t shiftKey() const;

private:
    xcb_keycode_t keyOf(std::initializer_list<xkb_keysym_t> symbols, xcb_keycode_t otherwise) const;
    void readLevel(xkb_keymap *map, xkb_state *state, const KeyChord &held);

    QHash<xkb_keysym_t, KeyChord> m_chords;
    /// What keys yield without any other, keypads too.
    QHash<xkb_keysym_t, xcb_keycode_t> m_plain;
};

} // namespace velvane
