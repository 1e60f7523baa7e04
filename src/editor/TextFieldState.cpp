#include "editor/TextFieldState.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace velvane {

namespace {

TextFieldState state(bool isSelected, bool isReadOnly, bool isEmpty)
{
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    return {.canCut = isSelected && !isReadOnly,
            .canCopy = isSelected,
            .canPaste = !isReadOnly && clipboard && clipboard->hasText(),
            .canSelectAll = !isEmpty};
}

} // namespace

std::optional<TextFieldState> TextFieldState::of(const QWidget &widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget))
        return state(line->hasSelectedText(), line->isReadOnly(), line->text().isEmpty());
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&widget))
        return state(text->textCursor().hasSelection(), text->isReadOnly(),
                     text->document()->isEmpty());
    return {};
}

} // namespace velvane
