#pragma once

class QMenu;

namespace velvane {

class FocusedActions;

/// What the File menu does with the focused demo beyond its file.
namespace DocumentCommands {

/// Adds the items, which follow what the focused editor publishes; `focused` must outlive the menu.
void addTo(QMenu &menu, FocusedActions &focused);

} // namespace DocumentCommands

} // namespace velvane
