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
    // A second one ends the process at once.
    std::signal(signal, SIG_DFL);
}

} // namespace

Interrupt::Interrupt()
{
    caught = 0;
    std::signal(SIGINT, note);
    std::signal(SIGTERM, note);
}

Interrupt::~Interrupt()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
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
