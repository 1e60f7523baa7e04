#pragma once

#include <QString>

#include <xcb/xproto.h>
#include <xkbcommon/xkbcommon.h>

#include <memory>

namespace velvane {

/// What the keys of one keyboard map mean. One thread at a time.
class X11KeyboardMap {
public:
    /// Takes over a reference of the map; null makes all keys mean nothing.
    explicit X11KeyboardMap(xkb_keymap *keymap);

    bool isNull() const { return !m_state; }

    /// The symbol of a key under the state that came with its event: modifiers, and the group in
    /// bits 13 and 14.
    xkb_keysym_t symbol(xcb_keycode_t key, uint16_t state);

    /// What it types by itself; empty for arrows, function keys and keys without a symbol.
    QString text(xcb_keycode_t key, uint16_t state);

private:
    void enter(uint16_t state);

    struct Release {
        void operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state *state) const { xkb_state_unref(state); }
    };
    std::unique_ptr<xkb_keymap, Release> m_keymap;
    std::unique_ptr<xkb_state, Release> m_state;
};

} // namespace velvane
