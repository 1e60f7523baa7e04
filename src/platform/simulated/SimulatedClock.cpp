#include "platform/simulated/SimulatedClock.h"

#include "base/Background.h"

#include <QTimer>

#include <coroutine>
#include <limits>
#include <utility>

namespace velvane {

// Suspends a coroutine until the pump has brought time to `end`.
class SimulatedClock::Wait {
public:
    Wait(SimulatedClock &clock, Seconds end) : m_clock(clock), m_end(end) {}

    bool await_ready() const noexcept { return false; }
    void await_resume() const noexcept {}

    void await_suspend(std::coroutine_handle<> waiting)
    {
        SimulatedClock &clock = m_clock;
        {
            const std::lock_guard lock(clock.m_mutex);
            ++clock.m_delays;
        }
        // Time may reach the end on a worker; the coroutine goes on where it waited.
        const auto resume = [&clock, waiting] {
            const auto goOn = [&clock, waiting] {
                {
                    const std::lock_guard lock(clock.m_mutex);
                    --clock.m_delays;
                }
                waiting.resume();
            };
            QMetaObject::invokeMethod(&clock.m_mainThread, goOn, Qt::QueuedConnection);
        };
        clock.at(m_end, resume);
        clock.queuePump();
    }

private:
    SimulatedClock &m_clock;
    const Seconds m_end;
};

Seconds SimulatedClock::now() const
{
    const std::lock_guard lock(m_mutex);
    return m_now;
}

void SimulatedClock::sleepUntil(Seconds deadline, const CancelCheck &shouldWake)
{
    const auto woken = [&] { return shouldWake && shouldWake(); };
    while (!woken()) {
        if (runNext(deadline))
            continue;
        const std::lock_guard lock(m_mutex);
        m_now = std::max(m_now, deadline);
        return;
    }
}

QCoro::Task<> SimulatedClock::delay(Seconds duration)
{
    const Seconds end = now() + (duration > Seconds(0) ? duration : Seconds(0));
    Wait wait(*this, end);
    co_await wait;
}

void SimulatedClock::at(Seconds time, std::function<void()> call)
{
    const std::lock_guard lock(m_mutex);
    m_due.emplace(std::max(time, m_now), std::move(call));
}

void SimulatedClock::advance(Seconds duration)
{
    sleepUntil(now() + duration);
}

bool SimulatedClock::idle() const
{
    const std::lock_guard lock(m_mutex);
    return m_due.empty() && m_delays == 0;
}

// Makes the next call due until then, if there is one.
bool SimulatedClock::runNext(Seconds until)
{
    std::function<void()> call;
    {
        const std::lock_guard lock(m_mutex);
        if (m_due.empty() || m_due.begin()->first > until)
            return false;
        auto next = m_due.extract(m_due.begin());
        m_now = std::max(m_now, next.key());
        call = std::move(next.mapped());
    }
    call();
    return true;
}

void SimulatedClock::queuePump()
{
    {
        const std::lock_guard lock(m_mutex);
        if (std::exchange(m_pumpQueued, true))
            return;
    }
    // A timer of 0 fires after all that is queued, and all that this queues in turn. There is no
    // telling when the background has done, so that is asked again and again.
    QTimer::singleShot(isBackgroundBusy() ? 1 : 0, &m_mainThread, [this] { pump(); });
}

void SimulatedClock::pump()
{
    bool waiting = false;
    {
        const std::lock_guard lock(m_mutex);
        m_pumpQueued = false;
        waiting = m_delays > 0;
    }
    if (waiting && isBackgroundBusy())
        queuePump();
    else if (waiting && runNext(Seconds(std::numeric_limits<double>::infinity())))
        queuePump();
}

} // namespace velvane
