#pragma once

namespace velvane {

/// Cubic ease-in-out: the fraction of a path covered after the fraction `a` of its time, in [0, 1].
constexpr double easeInOut(double a)
{
    if (a < 0.5)
        return 4 * a * a * a;
    const double rest = 2 - 2 * a;
    return 1 + (-0.5) * rest * rest * rest;
}

} // namespace velvane
