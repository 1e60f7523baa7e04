#pragma once

#include <chrono>

namespace velvane {

/// The time unit of every interface.
using Seconds = std::chrono::duration<double>;

// The standard's own suffix makes a long double, and 0.3s would not equal the Seconds(0.3) that a
// file holds. Suffixes without an underscore are reserved, hence the silence.
#pragma GCC diagnostic push
#ifdef __clang__
#pragma GCC diagnostic ignored "-Wuser-defined-literals"
#else
#pragma GCC diagnostic ignored "-Wliteral-suffix"
#endif
constexpr Seconds operator""s(long double seconds)
{
    return Seconds(static_cast<double>(seconds));
}

constexpr Seconds operator""s(unsigned long long seconds)
{
    return Seconds(static_cast<double>(seconds));
}
#pragma GCC diagnostic pop

} // namespace velvane
