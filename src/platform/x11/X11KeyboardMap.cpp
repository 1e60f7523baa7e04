#include "platform/x11/X11KeyboardMap.h"

#include <array>

namespace velvane {

X11KeyboardMap::X11KeyboardMap(xkb_keymap *keymap)
    : m_keymap(keymap)
    , m_state(keymap ? xkb_state_new(keymap) : nullptr)
{}

void X11KeyboardMap::enter(uint16_t state)
{
    constexpr xkb_mod_mask_t realModifiers = 0xff;
    const xkb_layout_index_t group = (state >> 13) & 3U;
    xkb_state_update_mask(m_state.get(), state & realModifiers, 0, 0, 0, 0, group);
}

xkb_keysym_t X11KeyboardMap::symbol(xcb_keycode_t key, uint16_t state)
{
    if (!m_state)
        return XKB_KEY_NoSymbol;
    enter(state);
    return xkb_state_key_get_one_sym(m_state.get(), key);
}

QString X11KeyboardMap::text(xcb_keycode_t key, uint16_t state)
{
    if (!m_state)
        return {};
    enter(state);
    // Room for what one key can type: a handful of symbols of up to four bytes.
    std::array<char, 64> utf8{};
    xkb_state_key_get_utf8(m_state.get(), key, utf8.data(), utf8.size());
    return QString::fromUtf8(utf8.data());
}

} // namespace velvane
