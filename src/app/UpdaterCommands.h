#pragma once

class QMenu;
class QWidget;

namespace velvane {

/// What follows the item "About Velvane".
namespace UpdaterCommands {

/// Adds "Check for Updates…"; the answer is shown over the window.
void addTo(QMenu &menu, QWidget &window);

} // namespace UpdaterCommands

} // namespace velvane
