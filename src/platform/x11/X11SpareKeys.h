#pragma once

#include "platform/x11/X11KeyMap.h"
#include "platform/x11/X11Poster.h"

namespace velvane {

/// The key codes without symbols, which type what no key of the layout has.
///
/// Each is lent two symbols, the second with Shift. Programs look symbols up some time after a key
/// was pressed, so changing what keys yield blocks for some tenths of a second before and after.
/// Gives all back when it ends.
class X11SpareKeys {
public:
    /// `shift` is the layout's key.
    X11SpareKeys(X11Poster &poster, xcb_keycode_t shift);
    ~X11SpareKeys();
    X11SpareKeys(const X11SpareKeys &) = delete;
    X11SpareKeys &operator=(const X11SpareKeys &) = delete;

    /// How many symbols there can be at a time.
    std::size_t capacity() const { return m_keys.size() * 2; }

    /// Puts these symbols in the place of those before; at most capacity().
    void lend(const std::vector<xkb_keysym_t> &symbols);

    /// The keys that yield a lent symbol.
    std::optional<KeyChord> chord(xkb_keysym_t symbol) const;

    /// The key codes that have no symbols and modify nothing.
    static std::vector<xcb_keycode_t> find(const X11Connection &connection);

private:
    X11Poster &m_poster;
    const xcb_keycode_t m_shift;
    const std::vector<xcb_keycode_t> m_keys;
    QHash<xkb_keysym_t, KeyChord> m_chords;
};

} // namespace velvane
