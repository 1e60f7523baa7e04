#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <functional>
#include <map>
#include <mutex>

namespace velvane {

/// Virtual time: it passes only when somebody waits, and then at once.
///
/// A worker's sleep jumps to its end, making the calls due on the way at their times. Delays on the
/// main thread share one pump: whenever the event loop has nothing else left to do, time jumps to
/// the next due call or delay. So several coroutines wait side by side in the right order, and what
/// a call queues for the main thread is done before time goes on. What goes on in the background is
/// waited for too: only it lets time pass then.
///
/// Time starts at 0. Made on the main thread.
class SimulatedClock final : public Clock {
public:
    Seconds now() const override;
    void sleepUntil(Seconds deadline, const CancelCheck &shouldWake = {}) override;
    void wake() override {}
    QCoro::Task<> delay(Seconds duration) override;

    /// Makes a call when time reaches `time`, on the thread that lets it pass; when it has already
    /// done so, as soon as somebody waits. Calls due at one time keep the order of asking.
    void at(Seconds time, std::function<void()> call);

    /// Lets time pass, making the calls due.
    void advance(Seconds duration);

    /// Are there no calls and no delays still to come?
    bool idle() const;

private:
    class Wait;
    bool runNext(Seconds until);
    void queuePump();
    void pump();

    mutable std::mutex m_mutex;
    Seconds m_now{0};
    std::multimap<Seconds, std::function<void()>> m_due;
    int m_delays = 0;
    bool m_pumpQueued = false;
    QObject m_mainThread;
};

} // namespace velvane
