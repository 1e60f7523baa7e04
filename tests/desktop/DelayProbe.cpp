#include "DelayProbe.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace velvane {

namespace {

constexpr Seconds pause = 0.002s;

/// The kernel's account of the thread of this name in this process; empty when there is none yet.
std::string accountOf(const std::string &name)
{
    for (const auto &task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::string comm;
        std::ifstream(task.path() / "comm") >> comm;
        if (comm == name)
            return task.path() / "schedstat";
    }
    return {};
}

} // namespace

DelayProbe::DelayProbe(Clock &clock) : m_clock(clock), m_thread([this] { run(); }) {}

DelayProbe::~DelayProbe()
{
    m_isEnding = true;
    m_thread.join();
}

void DelayProbe::run()
{
    xcb_connection_t *c = m_connection.get();
    std::string account;
    while (!m_isEnding) {
        const Seconds due = m_clock.now() + pause;
        m_clock.sleepUntil(due);
        std::free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
        const Answer answer{due, m_clock.now()};
        if (account.empty())
            account = accountOf("capture");
        // Nanoseconds that it ran, and that it was ready to run and did not.
        double ran = 0;
        double waited = 0;
        std::ifstream(account) >> ran >> waited;
        const std::lock_guard lock(m_mutex);
        m_answers.push_back(answer);
        m_starved.push_back({answer.came, Seconds(waited / 1e9)});
    }
}

Seconds DelayProbe::delay(Seconds from, Seconds to) const
{
    const std::lock_guard lock(m_mutex);
    Seconds sum{0};
    for (const Answer &answer : m_answers)
        sum += within(answer, from, to);
    return sum;
}

Seconds DelayProbe::longest(Seconds from, Seconds to) const
{
    const std::lock_guard lock(m_mutex);
    Seconds longest{0};
    for (const Answer &answer : m_answers)
        longest = std::max(longest, within(answer, from, to));
    return longest;
}

Seconds DelayProbe::starved(Seconds from, Seconds to) const
{
    const std::lock_guard lock(m_mutex);
    return sumAt(to) - sumAt(from);
}

// As it was told last before the moment.
Seconds DelayProbe::sumAt(Seconds moment) const
{
    const auto after = std::ranges::upper_bound(m_starved, moment, {}, &Starved::at);
    return after == m_starved.begin() ? Seconds(0) : std::prev(after)->sum;
}

Seconds DelayProbe::within(const Answer &answer, Seconds from, Seconds to)
{
    return std::max(std::min(answer.came, to) - std::max(answer.due, from), Seconds(0));
}

} // namespace velvane
