#pragma once

#include "model/Project.h"

namespace velvane {

/// The inspector's one-shot edits of one step, by its index. Nothing happens when the step there is
/// of another kind. Main thread only.
namespace StepEdits {

/// A switch step's option to centre the window: "Center Window".
void setCenterWindow(Project &project, qsizetype index, bool center);

/// A shortcut step's key: "Set Shortcut". The characters become the step's text.
void setShortcut(Project &project, qsizetype index, quint16 keyCode, quint64 modifiers,
                 const QString &characters);

} // namespace StepEdits

} // namespace velvane
