#pragma once

#include "platform/Clock.h"
#include "platform/ScreenCapture.h"
#include "platform/x11/capture/X11CaptureSource.h"

#include <atomic>
#include <future>
#include <mutex>
#include <thread>

namespace velvane {

class X11Camera;

/// Delivers pictures on a thread of its own until it is destroyed or the server has gone: after
/// each change, no more often than asked, and at least once a second.
class X11CaptureStream final : public Subscription {
public:
    struct Listener {
        ScreenCapture::Captured captured;
        ScreenCapture::Ended ended;
    };

    X11CaptureStream(const X11CaptureSource &source, const CaptureRequest &request,
                     const Clock &clock, Listener listener);
    ~X11CaptureStream() override;

    /// Waits until it is known whether there will be pictures: why there will be none, or empty.
    QString refusal() { return m_refusal.get(); }

private:
    void run(const X11CaptureSource &source, const CaptureRequest &request);
    void deliverUntilEnd(X11Camera &camera);
    void deliver(X11Camera &camera);
    /// Until the server says something, this ends, or time has come.
    void wait(int descriptor, Seconds until) const;
    void setSocket(int socket);
    Seconds wakeTime(const X11Camera &camera) const;

    const Clock &m_clock;
    const Listener m_listener;
    const Seconds m_interval;
    const int m_end;
    std::atomic<bool> m_isEnding = false;
    /// The camera's connection; -1 while there is none.
    std::mutex m_socketMutex;
    int m_socket = -1;
    std::promise<QString> m_opened;
    std::future<QString> m_refusal = m_opened.get_future();
    /// On the thread only.
    Seconds m_due{0};
    Seconds m_delivered{0};
    QImage m_last;
    std::thread m_thread;
};

} // namespace velvane
