#include "platform/x11/capture/X11CaptureStream.h"

#include "platform/x11/capture/X11Camera.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <utility>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace velvane {

namespace {

// A still screen's picture comes again after this, so that whoever waits for it sees life; and
// often enough that a recording, which reaches to its last picture, lacks no second when it is
// killed.
constexpr Seconds repeatAfter = 0.5s;
constexpr double leastRate = 0.1;
constexpr double mostRate = 1000;

double rateOf(const CaptureRequest &request)
{
    return std::isfinite(request.maxRate) ? std::clamp(request.maxRate, leastRate, mostRate)
                                          : mostRate;
}

timespec timespecOf(Seconds duration)
{
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(duration).count();
    constexpr long second = 1'000'000'000;
    return {nanoseconds / second, nanoseconds % second};
}

} // namespace

X11CaptureStream::X11CaptureStream(const X11CaptureSource &source, const CaptureRequest &request,
                                   const Clock &clock, Listener listener)
    : m_clock(clock)
    , m_listener(std::move(listener))
    , m_interval(1 / rateOf(request))
    , m_end(eventfd(0, EFD_CLOEXEC))
    , m_thread([=, this] { run(source, request); })
{}

// Whoever waits for an answer of a server that gives none does not wait on.
X11CaptureStream::~X11CaptureStream()
{
    m_isEnding = true;
    eventfd_write(m_end, 1);
    {
        const std::lock_guard lock(m_socketMutex);
        if (m_socket >= 0)
            shutdown(m_socket, SHUT_RDWR);
    }
    m_thread.join();
    close(m_end);
}

void X11CaptureStream::setSocket(int socket)
{
    const std::lock_guard lock(m_socketMutex);
    m_socket = socket;
}

void X11CaptureStream::run(const X11CaptureSource &source, const CaptureRequest &request)
{
    // In what lists the threads of a process.
    pthread_setname_np(pthread_self(), "capture");
    X11Camera camera(source, request);
    const QString refusal = camera.refusal();
    m_opened.set_value(refusal);
    if (!refusal.isEmpty())
        return;
    setSocket(camera.descriptor());
    deliverUntilEnd(camera);
    setSocket(-1);
}

void X11CaptureStream::deliverUntilEnd(X11Camera &camera)
{
    while (!m_isEnding) {
        const bool hears = camera.listen();
        if (m_isEnding)
            return;
        if (!hears)
            return m_listener.ended(
                QCoreApplication::translate("X11CaptureStream", "The X server has gone."));
        const Seconds wake = wakeTime(camera);
        if (m_clock.now() >= wake)
            deliver(camera);
        else
            wait(camera.descriptor(), wake);
    }
}

Seconds X11CaptureStream::wakeTime(const X11Camera &camera) const
{
    if (m_last.isNull() || camera.hasChanges() || camera.followsPointer())
        return m_due;
    return std::max(m_due, m_delivered + repeatAfter);
}

void X11CaptureStream::deliver(X11Camera &camera)
{
    const Seconds now = m_clock.now();
    // On the grid of the rate while pictures follow one another, so that they do not drift.
    m_due = std::max(m_due + m_interval, now - m_interval / 2);
    if (m_due <= now)
        m_due = now + m_interval;
    m_last = {};
    Frame frame = camera.take();
    if (frame.image.isNull() || m_isEnding)
        return;
    frame.time = now;
    m_last = frame.image;
    if (frame.changed.isEmpty() && now < m_delivered + repeatAfter)
        return;
    m_delivered = now;
    m_listener.captured(frame);
}

void X11CaptureStream::wait(int descriptor, Seconds until) const
{
    pollfd heard[] = {{descriptor, POLLIN, 0}, {m_end, POLLIN, 0}};
    const timespec left = timespecOf(std::max(until - m_clock.now(), Seconds(0)));
    ppoll(heard, 2, &left, nullptr);
}

} // namespace velvane
