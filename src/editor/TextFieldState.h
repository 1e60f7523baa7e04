#pragma once

#include <optional>

class QWidget;

namespace velvane {

/// What the clipboard's commands would do in a text field just now.
struct TextFieldState {
    bool canCut = false;
    bool canCopy = false;
    bool canPaste = false;
    bool canSelectAll = false;

    /// Nothing for a widget that is no text field.
    static std::optional<TextFieldState> of(const QWidget &widget);
};

} // namespace velvane
