#pragma once

#include "platform/Subscription.h"
#include "platform/x11/X11PostedKeys.h"
#include "platform/x11/X11RecordStream.h"

#include <atomic>
#include <functional>
#include <thread>

namespace velvane {

/// Hears the session's keyboard and pointer on a thread of its own, for whoever wants to know;
/// while nobody does there is neither thread nor connection. Main thread, but for the calls.
class X11Listener {
public:
    /// Both are called on the listening thread and must neither block nor touch subscriptions.
    using Heard = std::function<void(const X11HeardEvent &)>;
    using Lost = std::function<void()>;

    /// `connection` and `postedKeys` must outlive this.
    X11Listener(const X11Connection &connection, QByteArray display, X11PostedKeys &postedKeys);
    ~X11Listener();
    X11Listener(const X11Listener &) = delete;
    X11Listener &operator=(const X11Listener &) = delete;

    /// Calls `heard` for each event in order, and `lost` once, after the last event, when the
    /// server ends the listening. Null when it refuses. Ends before this does.
    Token subscribe(Heard heard, Lost lost);

    /// Why nothing can ever be heard: one sentence. A server without the record extension is a
    /// matter of permissions.
    QString missing() const;

private:
    struct Subscriber {
        Heard heard;
        Lost lost;
    };
    using Entry = std::shared_ptr<const Subscriber>;
    class Membership;

    bool start();
    void stop();
    void remove(const Entry &entry);

    // On the listening thread:
    void listen();
    void wait() const;
    void tell(std::vector<X11HeardEvent> &events);
    void tellLost();

    const X11Connection &m_connection;
    const QByteArray m_display;
    X11PostedKeys &m_postedKeys;

    std::mutex m_mutex;
    // Guarded; held during the calls, so that whoever leaves waits for the one under way.
    std::vector<Entry> m_subscribers;

    // Of the listening thread while there is one.
    std::unique_ptr<X11RecordStream> m_stream;
    std::atomic<bool> m_stopping = false;
    std::atomic<bool> m_ended = false;
    /// An eventfd: readable when the thread is to stop.
    const int m_alarm;
    std::thread m_thread;
};

} // namespace velvane
