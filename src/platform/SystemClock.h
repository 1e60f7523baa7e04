#pragma once

#include "platform/Clock.h"

#include <condition_variable>
#include <mutex>

namespace velvane {

/// The machine's monotonic clock; now() counts from the system's start.
class SystemClock final : public Clock {
public:
    Seconds now() const override;
    void sleepUntil(Seconds deadline, const CancelCheck &shouldWake = {}) override;
    void wake() override;
    QCoro::Task<> delay(Seconds duration) override;

private:
    std::mutex m_mutex;
    std::condition_variable m_woken;
};

} // namespace velvane
