#include "base/Background.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <exception>

namespace velvane {

namespace {

QThreadPool &workers();

// Work begins at once, however much is under way: a run must not wait for the end of an export,
// which keeps as many threads busy as the machine has cores. The threads end with the application,
// while what they keep of Qt for themselves can still be given back.
class Workers : public QThreadPool {
public:
    Workers()
    {
        setMaxThreadCount(1000);
        qAddPostRoutine([] { workers().waitForDone(); });
    }
};

QThreadPool &workers()
{
    static Workers pool;
    return pool;
}

// How many tasks have begun and not ended. Main thread only.
int tasks = 0;

class CountedTask {
public:
    CountedTask() { ++tasks; }
    ~CountedTask() { --tasks; }
    Q_DISABLE_COPY_MOVE(CountedTask)
};

} // namespace

QCoro::Task<> inBackground(std::function<void()> work)
{
    const CountedTask counted;
    // QtConcurrent would slice an exception to its own type; the pointer carries it whole.
    std::exception_ptr failure;
    const auto guarded = [&work, &failure] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
    };
    const QFuture<void> done = QtConcurrent::run(&workers(), guarded);
    co_await done;
    if (failure)
        std::rethrow_exception(failure);
}

bool isBackgroundBusy()
{
    return tasks > 0;
}

void onMainThread(std::function<void()> call)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(call), Qt::QueuedConnection);
}

} // namespace velvane
