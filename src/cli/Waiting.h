#pragma once

#include <QCoroTask>
#include <QEventLoop>

#include <exception>

namespace velvane::cli {

/// Turns the event loop until a task has ended; throws what it threw. Main thread only.
class Waiting {
public:
    static void forTask(QCoro::Task<> task)
    {
        Waiting waiting;
        const QCoro::Task<> watching = waiting.watch(task);
        if (!waiting.m_done)
            waiting.m_loop.exec();
        if (waiting.m_failure)
            std::rethrow_exception(waiting.m_failure);
    }

private:
    QCoro::Task<> watch(QCoro::Task<> &task)
    {
        try {
            co_await task;
        } catch (...) {
            m_failure = std::current_exception();
        }
        m_done = true;
        m_loop.quit();
    }

    QEventLoop m_loop;
    std::exception_ptr m_failure;
    bool m_done = false;
};

} // namespace velvane::cli
