#pragma once

#include "editor/ThemeColors.h"

#include <QPalette>
#include <QString>

namespace velvane {

/// Turns colours into what Qt's own widgets understand.
///
/// The style sheet knows a few roles, given as the dynamic property "look": "primary" (the
/// window's one main button), "flat" (a button without a frame), "destructive" (flat, and in the
/// destructive colour under the pointer), "note" (a secondary text), "pane" (a widget with the
/// window colour), "list" (one with the list's base colour), "stage" (one with the stage's).
namespace ThemeStyle {

QPalette palette(const ThemeColors &colors);
QString sheet(const ThemeColors &colors);

} // namespace ThemeStyle

} // namespace velvane
