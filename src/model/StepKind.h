#pragma once

#include <QString>

#include <array>
#include <optional>

namespace velvane {

/// What a step does. Enumerators are spelled as they are stored; their order is that of every menu.
enum class StepKind : quint8 {
    move,       ///< glide the cursor to the point
    click,      ///< press and release the left button
    rightClick, ///< press and release the right button
    hold,       ///< press the left button and keep it down: moves become drags
    release,    ///< let the left button up
    type,       ///< type the text, character by character
    shortcut,   ///< press a key with modifiers
    wait,       ///< do nothing for the pause
    switchApp,  ///< bring an application to the front
    section,    ///< a heading in the list; nothing at play time
};

inline constexpr std::array allStepKinds{
    StepKind::move,      StepKind::click,  StepKind::rightClick, StepKind::hold,
    StepKind::release,   StepKind::type,   StepKind::shortcut,   StepKind::wait,
    StepKind::switchApp, StepKind::section};

/// The stored name, e.g. "rightClick".
QString id(StepKind kind);

/// The kind of a stored name; nothing for a name that no kind has.
std::optional<StepKind> stepKind(const QString &id);

/// The kind's name in menus and headers, e.g. "Hold (mouse down)".
QString label(StepKind kind);

/// The compact name of the add grid, e.g. "Hold".
QString shortLabel(StepKind kind);

/// The name of the kind's icon.
QString symbol(StepKind kind);

/// Has the kind an action time of its own? The others take time only through their pause.
constexpr bool hasDuration(StepKind kind)
{
    return kind == StepKind::move || kind == StepKind::type;
}

} // namespace velvane
