#pragma once

#include "platform/DesktopShell.h"

class QMenu;
class QWidget;

namespace velvane {

/// The menu "Help".
namespace HelpCommands {

/// Adds "Velvane Help". The shell opens the page and must outlive the window; that it failed is
/// said over the window.
void addTo(QMenu &menu, DesktopShell &shell, QWidget &window);

} // namespace HelpCommands

} // namespace velvane
