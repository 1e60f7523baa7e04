#pragma once

class QMenu;

namespace velvane {

class FocusedActions;

/// The menu "View": backdrops and the magnifier.
namespace ViewCommands {

/// Adds the items, which follow what the focused editor publishes; `focused` must outlive the menu.
void addTo(QMenu &menu, FocusedActions &focused);

} // namespace ViewCommands

} // namespace velvane
