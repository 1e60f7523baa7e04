#pragma once

#include "editor/IconButton.h"
#include "editor/Icons.h"

#include <QString>

class QBoxLayout;
class QFileDialog;
class QFrame;
class QLabel;
class QWidget;

namespace velvane {

/// Small controls as the window's panes have them.
namespace Controls {

/// A button with a symbol and a text, or the symbol alone when the text is empty. `look` is a role
/// of the style sheet; the help text becomes tooltip and accessible description.
IconButton *button(const QString &symbol, const QString &text, const QString &help,
                   const QString &look = {}, QWidget *parent = nullptr);

/// Enables a control, or disables it and lets its tooltip say why.
void setUsable(QWidget &control, const QString &help, const QString &missing);

/// A one-pixel line across.
QFrame *hairline(QWidget *parent = nullptr);

/// A text that wraps; `look` is "note" or "hint".
QLabel *note(const QString &text, const QString &look, QWidget *parent = nullptr);

/// Makes room for the places and columns of Qt's own file panel; the system's is left as it is.
void makeRoom(QFileDialog &panel);

} // namespace Controls

} // namespace velvane
