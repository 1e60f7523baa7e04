#pragma once

class QFileDialog;

namespace velvane {

/// The window's own symbols for Qt's file panel, whose drawings look like another program's.
namespace FilePanelIcons {

/// Gives them to the panel's buttons, files and folders. The system's own panel is left as it is.
void give(QFileDialog &panel);

} // namespace FilePanelIcons

} // namespace velvane
