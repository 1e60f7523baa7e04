#pragma once

class QMenu;

namespace velvane {

class FocusedActions;

/// The menu "Step": adding, recording and deleting steps.
namespace StepCommands {

/// Adds the items, which follow what the focused editor publishes; `focused` must outlive the menu.
void addTo(QMenu &menu, FocusedActions &focused);

} // namespace StepCommands

} // namespace velvane
