#include "DelayProbe.h"

#include <algorithm>

namespace velvane {

namespace {

constexpr Seconds pause = 0.002s;

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
    while (!m_isEnding) {
        const Seconds due = m_clock.now() + pause;
        m_clock.sleepUntil(due);
        std::free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
        const Answer answer{due, m_clock.now()};
        const std::lock_guard lock(m_mutex);
        m_answers.push_back(answer);
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

Seconds DelayProbe::within(const Answer &answer, Seconds from, Seconds to)
{
    return std::max(std::min(answer.came, to) - std::max(answer.due, from), Seconds(0));
}

} // namespace velvane
