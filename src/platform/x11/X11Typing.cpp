#include "platform/x11/X11Typing.h"

#include "platform/x11/X11Symbols.h"
#include "platform/x11/X11Xkb.h"

#include <QSet>

#include <algorithm>

namespace velvane {

X11Unlocked::X11Unlocked(X11Poster &poster) : m_poster(poster)
{
    const auto letters = uint8_t(XCB_MOD_MASK_LOCK | XCB_MOD_MASK_SHIFT);
    const auto locked = uint8_t(lockedModifiers(poster.connection()) & letters);
    if (locked != 0)
        m_poster.unlock(locked);
}

X11Typing::X11Typing(X11Poster &poster, const QString &text)
    : m_poster(poster)
    , m_unlocked(poster)
    , m_layout(X11KeyMap::read(poster.connection()))
    , m_spare(poster, m_layout ? m_layout->shiftKey() : xcb_keycode_t(0))
    , m_symbols(symbolsOf(text))
{
    lendFrom(0);
}

void X11Typing::post(const QString &character)
{
    for (const xkb_keysym_t symbol : symbolsOf(character)) {
        if (!chord(symbol))
            lendFrom(m_typed);
        if (const auto keys = chord(symbol))
            m_poster.tap(*keys);
        ++m_typed;
    }
}

std::optional<KeyChord> X11Typing::chord(xkb_keysym_t symbol) const
{
    if (!m_layout)
        return {};
    const auto keys = m_layout->chord(symbol);
    return keys ? keys : m_spare.chord(symbol);
}

void X11Typing::lendFrom(std::size_t first)
{
    if (!m_layout || first >= m_symbols.size())
        return;
    const auto lacking =
        symbolsToLend(std::span(m_symbols).subspan(first), *m_layout, m_spare.capacity());
    if (!lacking.empty())
        m_spare.lend(lacking);
}

std::vector<xkb_keysym_t> symbolsToLend(std::span<const xkb_keysym_t> symbols,
                                        const X11KeyMap &layout, std::size_t capacity)
{
    std::vector<xkb_keysym_t> found;
    QSet<xkb_keysym_t> known;
    for (const xkb_keysym_t symbol : symbols) {
        if (layout.chord(symbol) || known.contains(symbol))
            continue;
        if (found.size() == capacity)
            break;
        known.insert(symbol);
        found.push_back(symbol);
    }
    return found;
}

} // namespace velvane
