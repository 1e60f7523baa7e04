#pragma once

#include "platform/Desktop.h"

namespace velvane::Live {

/// The timetable of a run: waits that follow each other, each to its own moment. Worker only.
///
/// A run is over when it is cancelled, or soon after the desktop has lost its display.
///
/// Every wait ends a duration after the end of the wait before, however late the work in between
/// came, so that small delays do not add up. Work that is to take time of its own, such as bringing
/// an application forward, is followed by restart(). When a whole wait has been missed it begins
/// anew by itself: events never come in a burst.
class Pace {
public:
    /// Time begins now. Borrows the desktop.
    Pace(Desktop &desktop, CancelCheck shouldCancel);

    bool isOver() const { return m_isLost || m_shouldCancel(); }

    /// Waits. Negative durations and NaN count as 0; the end of the run ends it early, a cancelled
    /// one when the clock is woken.
    void sleep(Seconds duration);

    /// Lets the next wait count from now.
    void restart() { m_time = m_clock.now(); }

private:
    void lookForDisplay();

    Desktop &m_desktop;
    Clock &m_clock;
    const CancelCheck m_shouldCancel;
    /// When the last wait ended, had nothing been late.
    Seconds m_time;
    Seconds m_nextLook;
    bool m_isLost = false;
};

} // namespace velvane::Live
