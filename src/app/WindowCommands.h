#pragma once

class QMenu;

namespace velvane {

class EditorWindow;

/// The menu "Window": this window, and all that are open.
namespace WindowCommands {

/// Adds the items; the list of windows is made when the menu opens.
void addTo(QMenu &menu, EditorWindow &window);

/// Makes the items anew.
void fill(QMenu &menu, EditorWindow &window);

} // namespace WindowCommands

} // namespace velvane
