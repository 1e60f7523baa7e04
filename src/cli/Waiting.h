#pragma once

#include "cli/Interrupt.h"

#include <QCoroTask>
#include <QEventLoop>
#include <QTimer>

#include <exception>

namespace velvane::cli {

/// Turns the event loop until a task has ended; throws what it threw. Main thread only.
class Waiting {
public:
    /// Starts the task. When Ctrl-C or SIGTERM comes meanwhile, calls `stop`, once, and goes on
    /// waiting: the task is to end soon.
    static void forTask(const std::function<QCoro::Task<>()> &start,
                        const std::function<void()> &stop)
    {
        const Interrupt interrupt;
        QTimer check;
        check.setTimerType(Qt::PreciseTimer);
        check.callOnTimeout([&] {
            if (interrupt.happened()) {
                check.stop();
                stop();
            }
        });
        check.start(interruptCheck);
        forTask(start());
    }

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
    // How often, in milliseconds, the main thread looks for a signal.
    static constexpr int interruptCheck = 20;

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
