#pragma once

#include <QCoreApplication>

namespace velvane {

/// Lets events in until the condition holds.
template <typename Condition>
void until(Condition holds)
{
    while (!holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace velvane
