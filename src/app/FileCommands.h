#pragma once

class QMenu;

namespace velvane {

class EditorWindow;

/// The menu "File": the demo's file, its export, and the program's end.
namespace FileCommands {

/// Adds the items, which act on the window.
void addTo(QMenu &menu, EditorWindow &window);

} // namespace FileCommands

} // namespace velvane
