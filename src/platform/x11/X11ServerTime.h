#pragma once

#include "base/Seconds.h"

#include <cstdint>
#include <optional>

namespace velvane {

/// Tells when an event happened, in Clock::now()'s time, from the server's milliseconds.
///
/// A server on this machine counts them by the same clock. One elsewhere has a clock of its own:
/// the quickest event so far then counts as heard at once.
class X11ServerTime {
public:
    /// The time of an event that has been heard at `now`. Never later than that, and never
    /// earlier than the answer before.
    Seconds of(uint32_t milliseconds, Seconds now);

private:
    /// By how much more than on this machine the server's time seems to lag; it wraps.
    std::optional<uint32_t> m_offset;
    Seconds m_latest{0};
};

} // namespace velvane
