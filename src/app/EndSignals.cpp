#include "app/EndSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace velvane {

namespace {

constexpr std::array signals{SIGTERM, SIGHUP, SIGINT};

// The handler may only write; the event loop hears of it through the other end.
std::array<int, 2> ends{-1, -1};

void tell(int)
{
    const int before = errno;
    const char byte = 0;
    // A pipe that is full has told enough.
    [[maybe_unused]] const ssize_t written = ::write(ends[1], &byte, 1);
    errno = before;
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction now {};
    ::sigaction(signal, nullptr, &now);
    if (now.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

int readEnd()
{
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    return ends[0];
}

} // namespace

EndSignals::EndSignals(QObject *parent)
    : QObject(parent)
    , m_notifier(readEnd(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &EndSignals::read);
    if (ends[1] < 0)
        return;
    for (const int signal : signals)
        handle(signal, tell);
}

EndSignals::~EndSignals()
{
    for (const int signal : signals)
        handle(signal, SIG_DFL);
    m_notifier.setEnabled(false);
    for (int &end : ends)
        ::close(std::exchange(end, -1));
}

void EndSignals::read()
{
    std::array<char, 16> bytes{};
    while (::read(ends[0], bytes.data(), bytes.size()) > 0) {
    }
    Q_EMIT received();
}

} // namespace velvane
