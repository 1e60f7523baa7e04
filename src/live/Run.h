#pragma once

#include "base/CancelCheck.h"
#include "model/Snapshot.h"
#include "platform/Desktop.h"

namespace velvane::Live {

/// Performs a demo on the real desktop: blocks until it has ended, or soon after `shouldCancel`
/// says so and the clock is woken. Worker only; nothing else may post input meanwhile.
///
/// The demo's points are the desktop's. A step's pause follows it; travel takes one interval more
/// than the move's duration. With `hideOthers` a switch to an application hides all others, ours
/// too. The left button is never left held; whatever else was done stays.
void run(Desktop &desktop, const Snapshot &demo, bool hideOthers, const CancelCheck &shouldCancel);

} // namespace velvane::Live
