#pragma once

#include "base/CancelCheck.h"
#include "base/Seconds.h"
#include "platform/Facility.h"

#include <QCoroTask>

namespace velvane {

/// The monotonic time of the machine, and waiting in it.
///
/// Negative durations and NaN count as 0; durations beyond what the system can express wait for as
/// long as it can.
class Clock : public Facility {
public:
    /// Time since a fixed moment before the program's start. Any thread.
    virtual Seconds now() const = 0;

    /// Blocks the calling worker until now() has reached `deadline`. Returns early only when wake()
    /// is called while `shouldWake`, if there is one, says true, or when it says so at once.
    /// Deadlines counted from one start do not drift as repeated sleeps do. Never on the main
    /// thread.
    virtual void sleepUntil(Seconds deadline, const CancelCheck &shouldWake = {}) = 0;

    /// Lets every sleeping worker ask its `shouldWake` again. Any thread.
    virtual void wake() = 0;

    /// Waits on the main thread without blocking it. Lets the event loop turn once even for 0.
    virtual QCoro::Task<> delay(Seconds duration) = 0;

    /// Blocks the calling worker for a duration.
    void sleep(Seconds duration, const CancelCheck &shouldWake = {})
    {
        if (duration > Seconds(0))
            sleepUntil(now() + duration, shouldWake);
    }
};

} // namespace velvane
