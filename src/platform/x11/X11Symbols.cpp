#include "platform/x11/X11Symbols.h"

namespace velvane {

namespace {

bool isControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7f && character < 0xa0);
}

xkb_keysym_t symbolOf(char32_t character)
{
    switch (character) {
    case U'\n':
    case U'\r':
    case 0x2028:
    case 0x2029:
        return XKB_KEY_Return;
    case U'\t':
        return XKB_KEY_Tab;
    case U'\b':
        return XKB_KEY_BackSpace;
    case 0x1b:
        return XKB_KEY_Escape;
    case 0x7f:
        return XKB_KEY_Delete;
    default:
        return isControl(character) ? XKB_KEY_NoSymbol : xkb_utf32_to_keysym(character);
    }
}

} // namespace

std::vector<xkb_keysym_t> symbolsOf(const QString &text)
{
    std::vector<xkb_keysym_t> symbols;
    char32_t last = 0;
    for (const uint code : text.toUcs4()) {
        const char32_t character = code;
        const bool sameBreak = character == U'\n' && last == U'\r';
        last = character;
        const xkb_keysym_t symbol = sameBreak ? XKB_KEY_NoSymbol : symbolOf(character);
        if (symbol != XKB_KEY_NoSymbol)
            symbols.push_back(symbol);
    }
    return symbols;
}

} // namespace velvane
