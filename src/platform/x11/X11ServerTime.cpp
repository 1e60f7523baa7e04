#include "platform/x11/X11ServerTime.h"

#include <algorithm>

namespace velvane {

namespace {

// A first event that seems older than this is dated by another clock. Short enough for two
// machines that started one after the other, long enough for a server that was busy.
constexpr int32_t longestLag = 5'000;

// Whole milliseconds, as the server counts them.
int64_t whole(Seconds time)
{
    return static_cast<int64_t>(time.count() * 1000);
}

// The server truncates to milliseconds as we do; both may still tick at different instants.
constexpr int32_t earliest = -2;

} // namespace

Seconds X11ServerTime::of(uint32_t milliseconds, Seconds now)
{
    const uint32_t behind = static_cast<uint32_t>(whole(now)) - milliseconds;
    if (!m_offset) {
        const auto lag = static_cast<int32_t>(behind);
        m_offset = lag >= earliest && lag <= longestLag ? 0 : behind;
    }
    auto lag = static_cast<int32_t>(behind - *m_offset);
    if (lag < earliest) {
        // Quicker than the quickest so far, or the server's clock has been set.
        m_offset = behind;
        lag = 0;
    }
    const Seconds when(static_cast<double>(whole(now) - lag) / 1000);
    m_latest = std::max(m_latest, std::min(when, now));
    return m_latest;
}

} // namespace velvane
