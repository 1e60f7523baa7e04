#pragma once

namespace velvane {

class EditorWindow;

/// Fills the window's menu bar: File, Edit, View, Demo, Step, Window, Help. Once per window, when
/// its demo has its undo stack.
void buildMenuBar(EditorWindow &window);

} // namespace velvane
