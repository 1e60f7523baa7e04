#include "platform/x11/X11KeyMap.h"

#include "base/KeyCode.h"

#include <algorithm>

#include <xkbcommon/xkbcommon-x11.h>

namespace velvane {

namespace {

struct Unref {
    void operator()(xkb_context *context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap *map) const { xkb_keymap_unref(map); }
    void operator()(xkb_state *state) const { xkb_state_unref(state); }
};
template <typename T>
using Xkb = std::unique_ptr<T, Unref>;

// Where these keys lie on every keyboard, for a map that names none.
constexpr xcb_keycode_t leftShift = 50, leftControl = 37, leftAlt = 64, leftSuper = 133;

bool isKeypad(xkb_keysym_t symbol)
{
    return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_Equal;
}

xcb_keycode_t lastCode(xkb_keymap *map)
{
    return static_cast<xcb_keycode_t>(std::min(xkb_keymap_max_keycode(map), xkb_keycode_t(255)));
}

} // namespace

std::optional<X11KeyMap> X11KeyMap::read(const X11Connection &connection)
{
    if (!connection.isOpen())
        return {};
    const Xkb<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const int32_t device = xkb_x11_get_core_keyboard_device_id(connection.get());
    if (!context || device < 0)
        return {};
    const Xkb<xkb_keymap> map(xkb_x11_keymap_new_from_device(context.get(), connection.get(),
                                                             device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!map)
        return {};
    const Xkb<xkb_state> state(xkb_x11_state_new_from_device(map.get(), connection.get(), device));
    if (!state)
        return {};
    return X11KeyMap(map.get(), xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE),
                     xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_LOCKED));
}

X11KeyMap::X11KeyMap(xkb_keymap *map, xkb_layout_index_t layout, xkb_mod_mask_t locked)
{
    const auto stateWith = [&](const KeyChord &held) {
        Xkb<xkb_state> state(xkb_state_new(map));
        xkb_state_update_mask(state.get(), 0, 0, locked, 0, 0, layout);
        for (const xcb_keycode_t key : held)
            xkb_state_update_key(state.get(), key, XKB_KEY_DOWN);
        return state;
    };
    readLevel(map, stateWith({}).get(), {});
    const xcb_keycode_t shift = shiftKey();
    const auto third = m_plain.constFind(XKB_KEY_ISO_Level3_Shift);
    std::vector<KeyChord> levels{{shift}};
    if (third != m_plain.constEnd()) {
        levels.push_back({*third});
        levels.push_back({shift, *third});
    }
    for (const KeyChord &held : levels)
        readLevel(map, stateWith(held).get(), held);
}

void X11KeyMap::readLevel(xkb_keymap *map, xkb_state *state, const KeyChord &held)
{
    for (unsigned code = xkb_keymap_min_keycode(map); code <= lastCode(map); ++code) {
        const auto key = static_cast<xcb_keycode_t>(code);
        const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state, key);
        if (symbol == XKB_KEY_NoSymbol)
            continue;
        if (held.empty() && !m_plain.contains(symbol))
            m_plain.insert(symbol, key);
        if (isKeypad(symbol))
            continue;
        KeyChord chord = held;
        chord.push_back(key);
        if (!m_chords.contains(symbol))
            m_chords.insert(symbol, chord);
        // Symbols of old and those that are the Unicode character are the same to programs.
        const uint32_t character = xkb_keysym_to_utf32(symbol);
        const xkb_keysym_t usual = character >= 0x20 ? xkb_utf32_to_keysym(character) : symbol;
        if (!m_chords.contains(usual))
            m_chords.insert(usual, chord);
    }
}

std::optional<KeyChord> X11KeyMap::chord(xkb_keysym_t symbol) const
{
    const auto found = m_chords.constFind(symbol);
    return found == m_chords.constEnd() ? std::nullopt : std::optional(*found);
}

KeyChord X11KeyMap::modifierKeys(quint64 modifiers) const
{
    KeyChord keys;
    if ((modifiers & Modifier::control) != 0)
        keys.push_back(keyOf({XKB_KEY_Control_L, XKB_KEY_Control_R}, leftControl));
    if ((modifiers & Modifier::option) != 0)
        keys.push_back(keyOf({XKB_KEY_Alt_L, XKB_KEY_Alt_R, XKB_KEY_Meta_L}, leftAlt));
    if ((modifiers & Modifier::shift) != 0)
        keys.push_back(shiftKey());
    if ((modifiers & Modifier::command) != 0)
        keys.push_back(keyOf({XKB_KEY_Super_L, XKB_KEY_Super_R}, leftSuper));
    return keys;
}

xcb_keycode_t X11KeyMap::shiftKey() const
{
    return keyOf({XKB_KEY_Shift_L, XKB_KEY_Shift_R}, leftShift);
}

xcb_keycode_t X11KeyMap::keyOf(std::initializer_list<xkb_keysym_t> symbols,
                               xcb_keycode_t otherwise) const
{
    for (const xkb_keysym_t symbol : symbols) {
        if (const auto found = m_plain.constFind(symbol); found != m_plain.constEnd())
            return *found;
    }
    return otherwise;
}

} // namespace velvane
