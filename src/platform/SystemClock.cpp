#include "platform/SystemClock.h"

#include <QCoroTimer>
#include <QTimer>

namespace velvane {

namespace {

using Steady = std::chrono::steady_clock;

// Far beyond any wait, and well inside what integer nanoseconds and milliseconds hold.
constexpr Seconds longest(1e9);
constexpr Seconds longestTimer(1e6);

// NaN is below every limit here and becomes 0.
Seconds within(Seconds duration, Seconds limit)
{
    return duration > Seconds(0) ? std::min(duration, limit) : Seconds(0);
}

} // namespace

Seconds SystemClock::now() const
{
    return Steady::now().time_since_epoch();
}

void SystemClock::sleepUntil(Seconds deadline, const CancelCheck &shouldWake)
{
    const Seconds bounded = within(deadline, now() + longest);
    const Steady::time_point end(std::chrono::duration_cast<Steady::duration>(bounded));
    std::unique_lock lock(m_mutex);
    m_woken.wait_until(lock, end, [&] { return shouldWake && shouldWake(); });
}

void SystemClock::wake()
{
    // Under the lock, so that a sleeper which has just asked and not yet begun to wait is woken
    // too.
    const std::lock_guard lock(m_mutex);
    m_woken.notify_all();
}

QCoro::Task<> SystemClock::delay(Seconds duration)
{
    const Seconds end = now() + within(duration, longest);
    do {
        QTimer timer;
        timer.setSingleShot(true);
        // The default type may be late by a twentieth of the time.
        timer.setTimerType(Qt::PreciseTimer);
        const Seconds left = within(end - now(), longestTimer);
        timer.start(std::chrono::ceil<std::chrono::milliseconds>(left));
        co_await timer;
    } while (now() < end);
}

} // namespace velvane
