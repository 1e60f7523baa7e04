#pragma once

#include <QCoroTask>
#include <QEventLoop>

#include <exception>

namespace velvane {

namespace detail {

struct Outcome {
    std::exception_ptr failure;
    bool done = false;
    QEventLoop loop;
};

inline QCoro::Task<> watchTask(QCoro::Task<> &task, Outcome &outcome)
{
    try {
        co_await task;
    } catch (...) {
        outcome.failure = std::current_exception();
    }
    outcome.done = true;
    outcome.loop.quit();
}

} // namespace detail

/// Turns the event loop until the task has ended; throws what it threw.
inline void runToEnd(QCoro::Task<> task)
{
    detail::Outcome outcome;
    const auto watching = detail::watchTask(task, outcome);
    if (!outcome.done)
        outcome.loop.exec();
    if (outcome.failure)
        std::rethrow_exception(outcome.failure);
}

} // namespace velvane
