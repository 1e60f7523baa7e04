#include "capture/StopRequest.h"

#include "base/KeyCode.h"

#include <algorithm>

namespace velvane {

namespace {

constexpr int firstNumber = 3;
// How soon a wait notices the wish.
constexpr Seconds glance = 0.1s;

} // namespace

bool StopRequest::watchEscape()
{
    m_escMonitor = m_desktop.keys().watch(KeyCode::escape, [this] { make(); });
    return m_escMonitor != nullptr;
}

void StopRequest::make()
{
    m_isMade = true;
    m_desktop.clock().wake();
}

QCoro::Task<> StopRequest::rest(Seconds duration)
{
    Clock &clock = m_desktop.clock();
    const Seconds end = clock.now() + duration;
    while (!m_isMade && clock.now() < end)
        co_await clock.delay(std::min(glance, end - clock.now()));
}

QCoro::Task<> StopRequest::countDown(Seconds eachNumber, std::function<void(int)> show)
{
    for (int n = firstNumber; n > 0 && !m_isMade; --n) {
        show(n);
        co_await rest(eachNumber);
    }
}

} // namespace velvane
