#include "capture/KeyCombination.h"

#include "base/KeyCode.h"
#include "base/KeyPosition.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace velvane {

namespace {

// X11 and Wayland number keys as the kernel does, plus this.
constexpr quint32 scanCodeOffset = 8;

bool isModifier(int key)
{
    constexpr std::array modifiers{
        Qt::Key_Shift,     Qt::Key_Control,     Qt::Key_Meta,       Qt::Key_Alt,
        Qt::Key_AltGr,     Qt::Key_Super_L,     Qt::Key_Super_R,    Qt::Key_Hyper_L,
        Qt::Key_Hyper_R,   Qt::Key_NumLock,     Qt::Key_ScrollLock, Qt::Key_CapsLock,
        Qt::Key_Multi_key, Qt::Key_Mode_switch,
    };
    return std::find(modifiers.begin(), modifiers.end(), key) != modifiers.end();
}

// For keys that come without a place, from an on-screen keyboard: where an ANSI keyboard has them.
std::optional<quint16> keyCodeByName(int key)
{
    // By letter, from A.
    constexpr std::array<quint16, 26> letters{0,  11, 8,  2,  14, 3, 5,  4,  34, 38, 40, 37, 46,
                                              45, 31, 35, 12, 15, 1, 17, 32, 9,  13, 7,  16, 6};
    constexpr std::array<quint16, 10> digits{29, 18, 19, 20, 21, 23, 22, 26, 28, 25};
    constexpr std::array<quint16, 12> functions{
        KeyCode::f1, KeyCode::f2, KeyCode::f3, KeyCode::f4,  KeyCode::f5,  KeyCode::f6,
        KeyCode::f7, KeyCode::f8, KeyCode::f9, KeyCode::f10, KeyCode::f11, KeyCode::f12};
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return letters[static_cast<std::size_t>(key - Qt::Key_A)];
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return digits[static_cast<std::size_t>(key - Qt::Key_0)];
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return functions[static_cast<std::size_t>(key - Qt::Key_F1)];
    static const QHash<int, quint16> others{
        {Qt::Key_Return, KeyCode::returnKey},
        {Qt::Key_Enter, KeyCode::keypadEnter},
        {Qt::Key_Tab, KeyCode::tab},
        {Qt::Key_Backtab, KeyCode::tab},
        {Qt::Key_Space, KeyCode::space},
        {Qt::Key_Backspace, KeyCode::backspace},
        {Qt::Key_Escape, KeyCode::escape},
        {Qt::Key_Delete, KeyCode::forwardDelete},
        {Qt::Key_Home, KeyCode::home},
        {Qt::Key_End, KeyCode::end},
        {Qt::Key_PageUp, KeyCode::pageUp},
        {Qt::Key_PageDown, KeyCode::pageDown},
        {Qt::Key_Left, KeyCode::leftArrow},
        {Qt::Key_Right, KeyCode::rightArrow},
        {Qt::Key_Up, KeyCode::upArrow},
        {Qt::Key_Down, KeyCode::downArrow},
        {Qt::Key_Minus, 27},
        {Qt::Key_Equal, 24},
        {Qt::Key_BracketLeft, 33},
        {Qt::Key_BracketRight, 30},
        {Qt::Key_Semicolon, 41},
        {Qt::Key_Apostrophe, 39},
        {Qt::Key_QuoteLeft, 50},
        {Qt::Key_Backslash, 42},
        {Qt::Key_Comma, 43},
        {Qt::Key_Period, 47},
        {Qt::Key_Slash, 44},
    };
    const auto found = others.constFind(key);
    return found == others.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<quint16> keyCode(const QKeyEvent &event)
{
    const quint32 scanCode = event.nativeScanCode();
    if (scanCode > scanCodeOffset) {
        if (const auto code = KeyPosition::keyCode(scanCode - scanCodeOffset))
            return code;
    }
    return keyCodeByName(event.key());
}

quint64 modifierBits(Qt::KeyboardModifiers held)
{
    quint64 bits = 0;
    if (held & Qt::ShiftModifier)
        bits |= Modifier::shift;
    if (held & Qt::ControlModifier)
        bits |= Modifier::control;
    if (held & Qt::AltModifier)
        bits |= Modifier::option;
    if (held & Qt::MetaModifier)
        bits |= Modifier::command;
    return bits;
}

// Qt's numbers of keys with a character are that character's; the others lie above.
QString characters(int key)
{
    if (key < Qt::Key_Space || key >= Qt::Key_Escape)
        return {};
    const auto character = static_cast<char32_t>(key);
    return QString::fromUcs4(&character, 1).toUpper();
}

} // namespace

KeyCapture::Outcome KeyCapture::pressed(const QKeyEvent &event)
{
    if (event.isAutoRepeat() || isModifier(event.key()))
        return Ignored{};
    const auto code = keyCode(event);
    if (!code)
        return Ignored{};
    if (*code == KeyCode::escape)
        return Cancelled{};
    return KeyCombination{.keyCode = *code,
                          .modifiers = modifierBits(event.modifiers()),
                          .characters = characters(event.key())};
}

} // namespace velvane
