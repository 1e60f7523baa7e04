#include "platform/x11/X11SpareKeys.h"

#include <algorithm>
#include <thread>

namespace velvane {

namespace {

using namespace std::chrono_literals;

// Until a program has looked up the symbols of the keys that were pressed, or has heard that the
// map has changed. Measured: half of these lose nothing on two busy cores.
constexpr auto beforeChange = 300ms;
constexpr auto afterChange = 150ms;

void settle(std::chrono::milliseconds time)
{
    std::this_thread::sleep_for(time);
}

} // namespace

X11SpareKeys::X11SpareKeys(X11Poster &poster, xcb_keycode_t shift)
    : m_poster(poster)
    , m_shift(shift)
    , m_keys(find(poster.connection()))
{}

X11SpareKeys::~X11SpareKeys()
{
    if (m_chords.isEmpty())
        return;
    settle(beforeChange);
    m_poster.takeBackLoans();
}

void X11SpareKeys::lend(const std::vector<xkb_keysym_t> &symbols)
{
    if (!m_chords.isEmpty())
        settle(beforeChange);
    m_chords.clear();
    std::vector<KeySymbols> loans;
    for (std::size_t i = 0; i < symbols.size() && i < capacity(); ++i) {
        const xcb_keycode_t key = m_keys[i / 2];
        const bool second = i % 2 != 0;
        if (second)
            loans.back().symbols[1] = symbols[i];
        else
            loans.push_back({key, {symbols[i], symbols[i]}});
        m_chords.insert(symbols[i], second ? KeyChord{m_shift, key} : KeyChord{key});
    }
    if (m_poster.lend(loans))
        return settle(afterChange);
    // Those before stay lent otherwise, and nothing would take them back.
    m_chords.clear();
    m_poster.takeBackLoans();
}

std::optional<KeyChord> X11SpareKeys::chord(xkb_keysym_t symbol) const
{
    const auto found = m_chords.constFind(symbol);
    return found == m_chords.constEnd() ? std::nullopt : std::optional(*found);
}

std::vector<xcb_keycode_t> X11SpareKeys::find(const X11Connection &connection)
{
    if (!connection.isOpen())
        return {};
    const xcb_setup_t *setup = xcb_get_setup(connection.get());
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const auto mapAsked =
        xcb_get_keyboard_mapping(connection.get(), setup->min_keycode, static_cast<uint8_t>(count));
    const auto modifiersAsked = xcb_get_modifier_mapping(connection.get());
    const XReply<xcb_get_keyboard_mapping_reply_t> map(
        xcb_get_keyboard_mapping_reply(connection.get(), mapAsked, nullptr));
    const XReply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection.get(), modifiersAsked, nullptr));
    if (!map || !modifiers)
        return {};
    const std::span symbols(xcb_get_keyboard_mapping_keysyms(map.get()),
                            std::size_t(count) * map->keysyms_per_keycode);
    const std::span modifying(xcb_get_modifier_mapping_keycodes(modifiers.get()),
                              std::size_t(modifiers->keycodes_per_modifier) * 8);
    std::vector<xcb_keycode_t> spare;
    for (int i = 0; i < count; ++i) {
        const auto key = static_cast<xcb_keycode_t>(setup->min_keycode + i);
        const auto own =
            symbols.subspan(std::size_t(i) * map->keysyms_per_keycode, map->keysyms_per_keycode);
        if (std::ranges::count(own, xcb_keysym_t(XCB_NO_SYMBOL)) == std::ptrdiff_t(own.size())
            && std::ranges::count(modifying, key) == 0)
            spare.push_back(key);
    }
    return spare;
}

} // namespace velvane
