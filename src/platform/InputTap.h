#pragma once

#include "platform/Facility.h"
#include "platform/InputEvent.h"
#include "platform/Subscription.h"

#include <functional>

namespace velvane {

/// Hears all input of the session, whoever it is meant for and whoever posted it, and never grabs,
/// delays or alters it. Wheel events and buttons other than left and right are not reported.
class InputTap : public Facility {
public:
    using Heard = std::function<void(const InputEvent &)>;
    using Lost = std::function<void()>;

    /// Calls `heard` on the main thread for each event in order, with the place and time at which
    /// it happened. `lost` is called once, on the main thread, if the system ends the listening;
    /// what was heard before has then been delivered. Null when the system refuses.
    virtual Token listen(Heard heard, Lost lost) = 0;
};

} // namespace velvane
