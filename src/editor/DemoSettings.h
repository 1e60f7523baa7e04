#pragma once

#include "model/Project.h"
#include "platform/Screens.h"

namespace velvane {

/// Edits of the demo as a whole, each one undo entry. Main thread only.
///
/// What is typed into the form's fields goes through FieldEditing instead.
namespace DemoSettings {

/// Canvas sides and rates are kept within these.
inline constexpr double minSide = 1;
inline constexpr double maxSide = 16384;
inline constexpr int minFps = 1;
inline constexpr int maxFps = 240;

/// The canvas side nearest to this, in whole pixels and within the limits.
double side(double value);

/// "Change Canvas".
void setCanvasSize(Project &project, QSizeF size);
/// Makes the canvas as large as the primary display, in points. False when there is none.
bool matchScreen(Project &project, Screens &screens);

/// Makes a picture file the backdrop: "Set Backdrop". Returns why it cannot be read, in one
/// sentence, or nothing.
std::optional<QString> setBackdrop(Project &project, const QString &file);
/// "Set Backdrop"; a null picture is ignored.
void setBackdrop(Project &project, const QImage &picture);
/// "Remove Backdrop".
void removeBackdrop(Project &project);

} // namespace DemoSettings

} // namespace velvane
