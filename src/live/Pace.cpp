#include "live/Pace.h"

#include <algorithm>

namespace velvane::Live {

namespace {

// How often a run makes sure that there still is a display.
constexpr Seconds betweenLooks = 1.0s;

} // namespace

Pace::Pace(Desktop &desktop, CancelCheck shouldCancel)
    : m_desktop(desktop)
    , m_clock(desktop.clock())
    , m_shouldCancel(std::move(shouldCancel))
    , m_time(m_clock.now())
    , m_nextLook(m_time)
{}

void Pace::sleep(Seconds duration)
{
    // NaN is not above 0 either.
    if (!(duration > Seconds(0)))
        return;
    if (m_clock.now() - m_time > duration)
        restart();
    m_time += duration;
    lookForDisplay();
    while (!isOver() && m_clock.now() < m_time) {
        m_clock.sleepUntil(std::min(m_time, m_nextLook), m_shouldCancel);
        lookForDisplay();
    }
}

// What is posted to a display that has gone is lost silently: nobody else would end the run.
void Pace::lookForDisplay()
{
    const Seconds now = m_clock.now();
    if (now < m_nextLook)
        return;
    m_nextLook = now + betweenLooks;
    m_isLost = !m_desktop.screens().pointer();
}

} // namespace velvane::Live
