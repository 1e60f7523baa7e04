#include "platform/x11/X11InputTap.h"

#include "base/Background.h"
#include "platform/x11/X11EventQueue.h"
#include "platform/x11/X11EventReader.h"
#include "platform/x11/X11ServerTime.h"
#include "platform/x11/X11Surroundings.h"

#include <clocale>

namespace velvane {

namespace {

// One who listens. Calls that are queued for the main thread share it, and find it closed when
// they come too late.
class Hearing : public std::enable_shared_from_this<Hearing> {
public:
    Hearing(const QByteArray &display, const Clock &clock, InputTap::Heard heard,
            InputTap::Lost lost)
        : m_clock(clock)
        , m_heard(std::move(heard))
        , m_lost(std::move(lost))
        , m_surroundings(display)
        , m_reader(setlocale(LC_CTYPE, nullptr))
    {}

    // On the listening thread, which is never busy long: the keyboard's map may change again soon.
    void hear(const X11HeardEvent &event)
    {
        if (event.type == XCB_KEY_RELEASE)
            return;
        m_surroundings.follow();
        auto understood = m_reader.read(m_surroundings.mapped(event), m_surroundings.space(),
                                        m_surroundings.mapAt(event.time));
        if (!understood)
            return;
        understood->time = m_serverTime.of(event.time, m_clock.now());
        if (m_queue.push(*understood))
            callOnMainThread(&Hearing::deliver);
    }
    void lose() { callOnMainThread(&Hearing::end); }

    // On the main thread.
    void close() { m_open = false; }

private:
    void callOnMainThread(void (Hearing::*call)())
    {
        onMainThread([weak = weak_from_this(), call] {
            if (const std::shared_ptr<Hearing> hearing = weak.lock())
                ((*hearing).*call)();
        });
    }

    void deliver()
    {
        // What comes meanwhile waits its turn behind what else the main thread has to do. One is
        // taken at a time, so that the order holds when a call turns the event loop.
        for (std::size_t left = m_queue.size(); left > 0 && m_open; --left) {
            if (const std::optional<InputEvent> event = m_queue.pop())
                m_heard(*event);
        }
        if (m_open && m_queue.size() > 0)
            callOnMainThread(&Hearing::deliver);
    }

    void end()
    {
        while (const std::optional<InputEvent> event = m_open ? m_queue.pop() : std::nullopt)
            m_heard(*event);
        if (m_open)
            m_lost();
    }

    const Clock &m_clock;
    const InputTap::Heard m_heard;
    const InputTap::Lost m_lost;
    X11EventQueue m_queue;
    // Of the listening thread:
    X11ServerTime m_serverTime;
    X11Surroundings m_surroundings;
    X11EventReader m_reader;
    // Of the main thread:
    bool m_open = true;
};

class Listening final : public Subscription {
public:
    Listening(Token subscription, std::shared_ptr<Hearing> hearing)
        : m_hearing(std::move(hearing))
        , m_subscription(std::move(subscription))
    {}
    ~Listening() override { m_hearing->close(); }

private:
    const std::shared_ptr<Hearing> m_hearing;
    const Token m_subscription;
};

} // namespace

X11InputTap::X11InputTap(X11Listener &listener, QByteArray display, const Clock &clock)
    : m_listener(listener)
    , m_display(std::move(display))
    , m_clock(clock)
{}

Token X11InputTap::listen(Heard heard, Lost lost)
{
    auto hearing = std::make_shared<Hearing>(m_display, m_clock, std::move(heard), std::move(lost));
    Token subscription =
        m_listener.subscribe([hearing](const X11HeardEvent &event) { hearing->hear(event); },
                             [hearing] { hearing->lose(); });
    if (!subscription)
        return {};
    return std::make_unique<Listening>(std::move(subscription), std::move(hearing));
}

} // namespace velvane
