#pragma once

#include "platform/InputSynthesizer.h"
#include "platform/x11/X11SpareKeys.h"

namespace velvane {

/// Unlocks what would change letters (Caps Lock) as long as it lives.
class X11Unlocked {
public:
    explicit X11Unlocked(X11Poster &poster);
    ~X11Unlocked() { m_poster.lockAgain(); }
    X11Unlocked(const X11Unlocked &) = delete;
    X11Unlocked &operator=(const X11Unlocked &) = delete;

private:
    X11Poster &m_poster;
};

/// Types a text with the layout's keys, and with spare ones what they lack. One press a code point:
/// X knows no key that yields several.
class X11Typing final : public InputSynthesizer::Typing {
public:
    X11Typing(X11Poster &poster, const QString &text);
    void post(const QString &character) override;

private:
    std::optional<KeyChord> chord(xkb_keysym_t symbol) const;
    void lendFrom(std::size_t first);

    X11Poster &m_poster;
    const X11Unlocked m_unlocked;
    const std::optional<X11KeyMap> m_layout;
    X11SpareKeys m_spare;
    /// What is to be typed, and how much of it has been.
    const std::vector<xkb_keysym_t> m_symbols;
    std::size_t m_typed = 0;
};

/// The first symbols that the layout lacks, each once: as many as one lending can hold.
std::vector<xkb_keysym_t> symbolsToLend(std::span<const xkb_keysym_t> symbols,
                                        const X11KeyMap &layout, std::size_t capacity);

} // namespace velvane
