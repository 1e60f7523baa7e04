#pragma once

class QMenu;

namespace velvane {

class EditorWindow;
class UpdaterController;

/// What follows the item "About Velvane".
namespace UpdaterCommands {

/// Adds "Check for Updates…", whose answer is shown over the window, and, where the program can
/// look by itself, "Check for Updates Automatically"; what that finds stands in the status line.
/// Borrows the updater for as long as the menu lives.
void addTo(QMenu &menu, EditorWindow &window, UpdaterController &updater);

} // namespace UpdaterCommands

} // namespace velvane
