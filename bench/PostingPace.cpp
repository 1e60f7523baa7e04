// Measures how evenly posted pointer moves arrive at another client, beside xdotool in a shell
// loop: no benchmark of CPU time. Wants a display of its own (tests/desktop/run-under-xvfb).
//
// usage: PostingPace [SECONDS]   for each rate; 60 if left out

#include "platform/Desktop.h"
#include "platform/x11/X11Connection.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <thread>
#include <vector>

namespace {

using namespace velvane;
using RealTime = std::chrono::steady_clock;

// A window over the whole screen, which notes when it is told of a move.
class Watcher {
public:
    Watcher()
    {
        const uint32_t values[] = {1, XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_BUTTON_PRESS};
        const QSize size = m_connection.rootSize();
        xcb_create_window(m_connection.get(), 0, m_window, m_connection.root(), 0, 0,
                          uint16_t(size.width()), uint16_t(size.height()), 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(m_connection.get(), m_window);
        xcb_flush(m_connection.get());
        m_thread = std::thread([this] { watch(); });
    }
    ~Watcher() { m_thread.join(); }
    Watcher(const Watcher &) = delete;
    Watcher &operator=(const Watcher &) = delete;

    // A press of a button ends the watching: the arrival of the moves before it, in seconds.
    std::vector<double> arrivals()
    {
        m_thread.join();
        m_thread = std::thread([] {});
        return m_arrivals;
    }

private:
    void watch()
    {
        for (;;) {
            const XReply<xcb_generic_event_t> event(xcb_wait_for_event(m_connection.get()));
            const RealTime::duration now = RealTime::now().time_since_epoch();
            if (!event || event->response_type == XCB_BUTTON_PRESS)
                return;
            if (event->response_type == XCB_MOTION_NOTIFY)
                m_arrivals.push_back(std::chrono::duration<double>(now).count());
        }
    }

    X11Connection m_connection;
    const xcb_window_t m_window = xcb_generate_id(m_connection.get());
    std::vector<double> m_arrivals;
    std::thread m_thread;
};

void report(const char *who, int rate, const std::vector<double> &arrivals)
{
    std::vector<double> errors;
    for (std::size_t i = 1; i < arrivals.size(); ++i)
        errors.push_back(1000 * std::abs(arrivals[i] - arrivals[i - 1] - 1.0 / rate));
    if (errors.empty())
        return;
    std::sort(errors.begin(), errors.end());
    const double lasted = arrivals.back() - arrivals.front();
    std::printf("%-8s %3d Hz: %5zu moves; interval error ms: median %.3f, p99 %.3f, worst %.3f; "
                "drift after %.1f s: %.1f ms\n",
                who, rate, arrivals.size(), errors[errors.size() / 2],
                errors[errors.size() * 99 / 100], errors.back(), lasted,
                1000 * (lasted - double(errors.size()) / rate));
}

QPointF place(int k)
{
    return {double(100 + k % 1000), double(200 + k % 2)};
}

void postMoves(Desktop &desktop, int rate, int count)
{
    desktop.input().moveTo({50, 50}, false);
    const Seconds start = desktop.clock().now();
    for (int k = 0; k < count; ++k) {
        desktop.input().moveTo(place(k), false);
        desktop.clock().sleepUntil(start + Seconds(double(k + 1) / rate));
    }
}

void measure(Desktop &desktop, const char *who, int rate, const std::function<void()> &post)
{
    Watcher watcher;
    QThread::msleep(300);
    post();
    desktop.input().press(MouseButton::left, {20, 20});
    desktop.input().release(MouseButton::left, {20, 20});
    std::vector<double> arrivals = watcher.arrivals();
    // The first goes to where the travel begins, the last to the press.
    if (arrivals.size() > 2)
        report(who, rate, {arrivals.begin() + 1, arrivals.end() - 1});
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const double seconds = argc > 1 ? std::atof(argv[1]) : 60;
    const auto desktop = Desktop::open();
    for (const int rate : {60, 120}) {
        const int count = int(seconds * rate);
        measure(*desktop, "velvane", rate, [&] { postMoves(*desktop, rate, count); });
        const QString loop = QStringLiteral("xdotool mousemove 50 50; i=0; while [ $i -lt %1 ]; do "
                                            "xdotool mousemove $((100 + i % 1000)) 200; "
                                            "sleep %2; i=$((i+1)); done")
                                 .arg(count)
                                 .arg(1.0 / rate);
        measure(*desktop, "xdotool", rate, [&] { QProcess::execute("sh", {"-c", loop}); });
    }
}
