#pragma once

class QMenu;

namespace velvane {

class FocusedActions;

/// The menu "Demo": running, recording the screen, playing.
namespace DemoCommands {

/// Adds the items, which follow what the focused editor publishes; `focused` must outlive the menu.
void addTo(QMenu &menu, FocusedActions &focused);

} // namespace DemoCommands

} // namespace velvane
