#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace velvane {

/// Waits until a condition holds, turning the event loop, for at most ten seconds. Says whether it
/// does: what another process does has no event of its own to wait for.
template <typename Condition>
bool eventually(Condition condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    return true;
}

} // namespace velvane
