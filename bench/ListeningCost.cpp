#include "platform/SystemClock.h"
#include "platform/x11/X11InputTap.h"

#include <QCoreApplication>
#include <QThread>

#include <poll.h>
#include <sys/resource.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <thread>

// What listening costs: the processor time of this program for 1,000 pointer events, and by how
// much later an event reaches the window it is meant for, with and without a listener. Needs an X
// server; moves the pointer.

namespace velvane {

namespace {

constexpr int rounds = 4;
constexpr int moves = 4'000;
// As often as a good mouse moves.
constexpr Seconds interval(1.0 / 1000);

Seconds processorTime()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return Seconds(double(time.tv_sec) + double(time.tv_usec) / 1e6);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

struct Cost {
    Seconds processor{0};
    std::vector<Seconds> latencies;
};

// A window over the whole screen that waits for the pointer.
class Receiver {
public:
    Receiver()
    {
        const uint32_t values[] = {1, XCB_EVENT_MASK_POINTER_MOTION};
        const QSize size = m_connection.rootSize();
        const xcb_window_t window = xcb_generate_id(m_connection.get());
        xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, window, m_connection.root(), 0,
                          0, uint16_t(size.width()), uint16_t(size.height()), 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(m_connection.get(), window);
        xcb_flush(m_connection.get());
    }

    // Waits for a move to a column.
    void await(int x)
    {
        pollfd source{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
        while (m_connection.isOpen()) {
            while (
                const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
                const auto *motion = reinterpret_cast<xcb_motion_notify_event_t *>(event.get());
                if (event->response_type == XCB_MOTION_NOTIFY && motion->root_x == x)
                    return;
            }
            poll(&source, 1, -1);
        }
    }

private:
    const X11Connection m_connection;
};

// Posts evenly and times each event's way to the window.
Cost measure(SystemClock &clock, Receiver &receiver)
{
    const X11Connection poster;
    Cost cost;
    const Seconds before = processorTime();
    const Seconds start = clock.now();
    for (int i = 0; i < moves; ++i) {
        clock.sleepUntil(start + interval * i);
        const int x = 10 + i % 500;
        const Seconds posted = clock.now();
        xcb_test_fake_input(poster.get(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, poster.root(),
                            int16_t(x), 10, 0);
        xcb_flush(poster.get());
        receiver.await(x);
        cost.latencies.push_back(clock.now() - posted);
    }
    cost.processor = processorTime() - before;
    return cost;
}

// On a worker, while the main thread delivers.
Cost measureInBackground(SystemClock &clock, Receiver &receiver)
{
    Cost cost;
    std::atomic<bool> done = false;
    std::thread worker([&] {
        cost = measure(clock, receiver);
        done = true;
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection);
    });
    while (!done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    worker.join();
    return cost;
}

void print(const char *what, Cost cost)
{
    std::ranges::sort(cost.latencies);
    const auto at = [&](double part) {
        return cost.latencies[std::size_t(part * double(cost.latencies.size() - 1))].count() * 1e6;
    };
    std::cout << std::left << std::setw(12) << what << std::right << std::fixed
              << std::setprecision(2) << std::setw(8) << cost.processor.count() * 1e6 / moves
              << " ms per 1,000 events   latency p50" << std::setprecision(0) << std::setw(6)
              << at(0.5) << " µs, p99" << std::setw(6) << at(0.99) << " µs\n";
}

int run()
{
    const X11Connection connection;
    if (!connection.isOpen()) {
        std::cerr << "There is no display.\n";
        return 1;
    }
    SystemClock clock;
    X11PostedKeys postedKeys;
    X11Listener listener(connection, {}, postedKeys);
    X11InputTap tap(listener, {}, clock);
    Receiver receiver;
    int heard = 0;
    for (int round = 0; round < rounds; ++round) {
        print("alone", measureInBackground(clock, receiver));
        const Token token = tap.listen([&](const InputEvent &) { ++heard; }, [] {});
        print("listening", measureInBackground(clock, receiver));
    }
    std::cout << heard << " of " << rounds * moves << " events heard\n";
    return 0;
}

} // namespace

} // namespace velvane

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return velvane::run();
}
