#pragma once

#include <QCoroTask>

#include <functional>

namespace velvane {

/// Runs work on a worker thread; the returned task, awaited on the main thread, ends when the work
/// has, and throws what the work threw, unchanged.
QCoro::Task<> inBackground(std::function<void()> work);

/// Is any such task still to end? Main thread only.
bool isBackgroundBusy();

/// Queues a call for the main thread. Thread-safe; calls keep their order.
void onMainThread(std::function<void()> call);

} // namespace velvane
