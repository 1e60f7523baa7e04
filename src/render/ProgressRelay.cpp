#include "render/ProgressRelay.h"

#include "base/Background.h"

#include <utility>

namespace velvane {

namespace {

constexpr int maxQueued = 64;
constexpr int patienceMilliseconds = 20;

} // namespace

ProgressRelay::ProgressRelay(std::function<void(double)> progress)
    : m_progress(std::move(progress))
    , m_free(maxQueued)
{}

bool ProgressRelay::send(double value, const CancelCheck &shouldCancel)
{
    if (!acquire(1, shouldCancel))
        return false;
    // The queued call may outlive the export that made it.
    onMainThread([self = shared_from_this(), value] { self->deliver(value); });
    return true;
}

bool ProgressRelay::drain(const CancelCheck &shouldCancel)
{
    return acquire(maxQueued, shouldCancel);
}

bool ProgressRelay::acquire(int count, const CancelCheck &shouldCancel)
{
    while (!m_free.tryAcquire(count, patienceMilliseconds)) {
        if (shouldCancel())
            return false;
    }
    return true;
}

void ProgressRelay::deliver(double value)
{
    if (m_progress)
        m_progress(value);
    m_free.release();
}

} // namespace velvane
