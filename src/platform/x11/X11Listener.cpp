#include "platform/x11/X11Listener.h"

#include <QCoreApplication>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>

namespace velvane {

namespace {

// Milliseconds that the server may hold back what nobody else is told. Shorter than anyone notices,
// long enough to cost nothing.
constexpr int longestHold = 20;

} // namespace

class X11Listener::Membership final : public Subscription {
public:
    Membership(X11Listener &listener, Entry entry) : m_listener(listener), m_entry(std::move(entry))
    {}
    ~Membership() override { m_listener.remove(m_entry); }

private:
    X11Listener &m_listener;
    const Entry m_entry;
};

X11Listener::X11Listener(const X11Connection &connection, QByteArray display,
                         X11PostedKeys &postedKeys)
    : m_connection(connection)
    , m_display(std::move(display))
    , m_postedKeys(postedKeys)
    , m_alarm(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{}

X11Listener::~X11Listener()
{
    stop();
    close(m_alarm);
}

QString X11Listener::missing() const
{
    if (!m_connection.isOpen())
        return QCoreApplication::translate("X11Listener", "There is no display.");
    return {};
}

Token X11Listener::subscribe(Heard heard, Lost lost)
{
    // A thread whose server has gone ends by itself; a new one tries again.
    if (m_ended)
        stop();
    const auto entry =
        std::make_shared<const Subscriber>(Subscriber{std::move(heard), std::move(lost)});
    {
        const std::lock_guard lock(m_mutex);
        m_subscribers.push_back(entry);
    }
    auto token = std::make_unique<Membership>(*this, entry);
    if (!m_thread.joinable() && !start())
        return {};
    return token;
}

void X11Listener::remove(const Entry &entry)
{
    bool last = false;
    {
        const std::lock_guard lock(m_mutex);
        std::erase(m_subscribers, entry);
        last = m_subscribers.empty();
    }
    if (last)
        stop();
}

bool X11Listener::start()
{
    m_postedKeys.setCounting(true);
    m_stream = std::make_unique<X11RecordStream>(m_connection, m_display);
    if (!m_stream->isOpen()) {
        stop();
        return false;
    }
    m_thread = std::thread([this] { listen(); });
    return true;
}

void X11Listener::stop()
{
    if (m_thread.joinable()) {
        m_stopping = true;
        eventfd_write(m_alarm, 1);
        m_thread.join();
        eventfd_t ignored = 0;
        eventfd_read(m_alarm, &ignored);
    }
    m_stream.reset();
    m_stopping = false;
    m_ended = false;
    m_postedKeys.setCounting(false);
}

void X11Listener::listen()
{
    using Reading = X11RecordStream::Reading;
    std::vector<X11HeardEvent> events;
    while (!m_stopping) {
        const Reading reading = m_stream->read(events);
        if (reading == Reading::ended)
            return tellLost();
        if (reading == Reading::nothing)
            wait();
        else
            tell(events);
    }
}

void X11Listener::wait() const
{
    pollfd sources[] = {{m_stream->descriptor(), POLLIN, 0}, {m_alarm, POLLIN, 0}};
    if (poll(sources, std::size(sources), longestHold) == 0)
        m_stream->nudge();
}

void X11Listener::tell(std::vector<X11HeardEvent> &events)
{
    for (X11HeardEvent &event : events) {
        // Here, where each press passes once, however many listen.
        event.ours = event.type == XCB_KEY_PRESS && m_postedKeys.take(event.detail);
    }
    const std::lock_guard lock(m_mutex);
    for (const X11HeardEvent &event : events) {
        for (const Entry &subscriber : m_subscribers)
            subscriber->heard(event);
    }
    events.clear();
}

void X11Listener::tellLost()
{
    m_ended = true;
    const std::lock_guard lock(m_mutex);
    for (const Entry &subscriber : m_subscribers)
        subscriber->lost();
    // Whoever was told hears nothing of a listening that begins later.
    m_subscribers.clear();
}

} // namespace velvane
