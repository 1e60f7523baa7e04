#pragma once

#include "base/CancelCheck.h"

#include <QSemaphore>

#include <functional>
#include <memory>

namespace velvane {

/// Carries every progress value from a worker to the main thread, in order, without letting the
/// worker run far ahead and flood the event loop.
class ProgressRelay : public std::enable_shared_from_this<ProgressRelay> {
public:
    explicit ProgressRelay(std::function<void(double)> progress);

    /// Queues one value. Worker; waits while too many are queued, unless cancelled.
    /// False when cancelled: the value was not sent.
    bool send(double value, const CancelCheck &shouldCancel);

    /// Waits until every value has arrived. Worker; false when cancelled meanwhile.
    bool drain(const CancelCheck &shouldCancel);

    /// Values that are still on their way are dropped. Main thread.
    void close() { m_progress = nullptr; }

private:
    bool acquire(int count, const CancelCheck &shouldCancel);
    void deliver(double value);

    std::function<void(double)> m_progress;
    QSemaphore m_free;
};

} // namespace velvane
