#pragma once

#include "platform/Desktop.h"

#include <atomic>
#include <functional>

namespace velvane {

/// The wish that something under way end: the user's, by Esc wherever the focus is, or the
/// program's own. Made, cleared and watched on the main thread.
class StopRequest {
public:
    explicit StopRequest(Desktop &desktop) : m_desktop(desktop) {}

    /// Forgets a wish of before.
    void clear() { m_isMade = false; }
    /// From now on Esc makes the wish. False when the system does not let us see it.
    bool watchEscape();
    void stopWatching() { m_escMonitor.reset(); }

    /// Makes the wish, and wakes whoever waits. Any thread.
    void make();
    /// Any thread.
    bool isMade() const { return m_isMade; }

    /// Waits on the main thread; ends early, within a tenth of a second, once the wish is made.
    QCoro::Task<> rest(Seconds duration);
    /// Shows 3, 2 and 1 for so long each; ends early like rest().
    QCoro::Task<> countDown(Seconds eachNumber, std::function<void(int)> show);

private:
    Desktop &m_desktop;
    std::atomic<bool> m_isMade = false;
    Token m_escMonitor;
};

} // namespace velvane
