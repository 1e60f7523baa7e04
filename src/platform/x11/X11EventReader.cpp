#include "platform/x11/X11EventReader.h"

#include "base/KeyCode.h"
#include "platform/x11/X11KeyCode.h"

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

constexpr uint8_t leftButton = 1;
constexpr uint8_t rightButton = 3;
constexpr uint16_t altMask = XCB_MOD_MASK_1;
constexpr uint16_t superMask = XCB_MOD_MASK_4;
// With one of these held a key is a command and types nothing.
constexpr uint16_t commandMask = XCB_MOD_MASK_CONTROL | altMask | superMask;

std::optional<Kind> kindOf(const X11HeardEvent &event)
{
    const bool left = event.detail == leftButton;
    switch (event.type) {
    case XCB_KEY_PRESS:
        return Kind::keyDown;
    case XCB_BUTTON_PRESS:
        if (left || event.detail == rightButton)
            return left ? Kind::leftMouseDown : Kind::rightMouseDown;
        return {};
    case XCB_BUTTON_RELEASE:
        if (left || event.detail == rightButton)
            return left ? Kind::leftMouseUp : Kind::rightMouseUp;
        return {};
    case XCB_MOTION_NOTIFY:
        if (event.state & XCB_BUTTON_MASK_1)
            return Kind::leftMouseDragged;
        // A drag of another button is neither a move nor a drag of the left one.
        if (event.state & (XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3))
            return {};
        return Kind::mouseMoved;
    default:
        return {};
    }
}

quint64 modifiersOf(uint16_t state)
{
    quint64 modifiers = 0;
    modifiers |= state & XCB_MOD_MASK_SHIFT ? Modifier::shift : 0;
    modifiers |= state & XCB_MOD_MASK_CONTROL ? Modifier::control : 0;
    modifiers |= state & altMask ? Modifier::option : 0;
    modifiers |= state & superMask ? Modifier::command : 0;
    return modifiers;
}

// Keys that only change what others mean.
bool isModifier(xkb_keysym_t symbol)
{
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R)
           || (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock)
           || symbol == XKB_KEY_Mode_switch || symbol == XKB_KEY_Num_Lock;
}

} // namespace

std::optional<InputEvent> X11EventReader::read(const X11HeardEvent &event,
                                               const X11RootSpace &space, X11KeyboardMap &map)
{
    const std::optional<Kind> kind = kindOf(event);
    if (!kind)
        return {};
    InputEvent made;
    made.kind = *kind;
    made.point = space.point({event.x, event.y});
    made.modifiers = modifiersOf(event.state);
    if (*kind != Kind::keyDown)
        return made;
    const std::optional<QString> text = textOf(event, map);
    if (!text)
        return {};
    made.text = *text;
    made.keyCode = X11KeyCode::stored(event.detail).value_or(InputEvent::noKey);
    return made;
}

std::optional<QString> X11EventReader::textOf(const X11HeardEvent &event, X11KeyboardMap &map)
{
    using Outcome = X11Composer::Outcome;
    const xkb_keysym_t symbol = map.symbol(event.detail, event.state);
    if (isModifier(symbol))
        return {};
    if (event.state & commandMask) {
        m_composer.reset();
        return QString();
    }
    switch (m_composer.feed(symbol)) {
    case Outcome::pending:
        return {};
    case Outcome::composed:
        return m_composer.text();
    case Outcome::plain:
        break;
    }
    return map.text(event.detail, event.state);
}

} // namespace velvane
