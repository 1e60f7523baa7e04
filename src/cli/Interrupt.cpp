#include "cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace velvane::cli {

namespace {

std::atomic<int> caught = 0;
static_assert(std::atomic<int>::is_always_lock_free, "set from a signal handler");

void note(int signal)
{
    caught = signal;
    // A second one ends the process at once; of a terminal that closes several may tell.
    if (signal != SIGHUP)
        std::signal(signal, SIG_DFL);
}

} // namespace

Interrupt::Interrupt()
{
    caught = 0;
    std::signal(SIGINT, note);
    std::signal(SIGTERM, note);
    // Ignored, it is by someone's wish: see nohup(1).
    if (std::signal(SIGHUP, note) == SIG_IGN)
        std::signal(SIGHUP, SIG_IGN);
}

Interrupt::~Interrupt()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    if (std::signal(SIGHUP, SIG_DFL) == SIG_IGN)
        std::signal(SIGHUP, SIG_IGN);
}

bool Interrupt::happened() const
{
    return caught != 0;
}

int Interrupt::exitStatus() const
{
    return 128 + caught;
}

} // namespace velvane::cli
