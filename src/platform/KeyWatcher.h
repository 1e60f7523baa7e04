#pragma once

#include "platform/Facility.h"
#include "platform/Subscription.h"

#include <functional>

namespace velvane {

/// Sees one key go down wherever the focus is, without taking it away from anybody.
class KeyWatcher : public Facility {
public:
    /// Calls `pressed` at each press of the key with a stored number, whatever modifiers are held,
    /// repeats included. Presses that this desktop's own InputSynthesizer posted do not count.
    ///
    /// The call comes at once and on any thread, even while the main thread is busy: set an atomic
    /// flag, wake the clock, or hop with onMainThread(). Null when the system refuses.
    virtual Token watch(quint16 keyCode, std::function<void()> pressed) = 0;
};

} // namespace velvane
