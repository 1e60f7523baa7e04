#include "timeline/Ticker.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

Seconds now()
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

} // namespace

Ticker::Ticker(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Ticker::fire);
}

void Ticker::start(Seconds interval)
{
    m_interval = std::max(interval, Seconds(0.001));
    m_deadline = now();
    arm();
}

void Ticker::stop()
{
    m_timer.stop();
}

Seconds Ticker::next(Seconds deadline, Seconds interval, Seconds now)
{
    deadline += interval;
    if (deadline < now)
        deadline += interval * std::floor((now - deadline) / interval);
    return deadline;
}

void Ticker::arm()
{
    const Seconds time = now();
    m_deadline = next(m_deadline, m_interval, time);
    const Seconds rest = std::max(m_deadline - time, Seconds(0));
    m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(rest));
}

void Ticker::fire()
{
    // Before the signal, so that a slot's own time does not add up and its stop() holds.
    arm();
    Q_EMIT ticked();
}

} // namespace velvane
