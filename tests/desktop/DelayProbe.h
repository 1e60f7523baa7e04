#pragma once

#include "platform/Clock.h"
#include "platform/x11/X11Connection.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace velvane {

/// Measures how the machine keeps a thread waiting that does next to nothing: it wakes and asks the
/// X server a trifle, over and over. So a test can tell what is late of itself from what a busy
/// machine makes late.
class DelayProbe {
public:
    explicit DelayProbe(Clock &clock);
    ~DelayProbe();
    DelayProbe(const DelayProbe &) = delete;
    DelayProbe &operator=(const DelayProbe &) = delete;

    /// For how long, all in all, between two moments it should have had its answer and had not.
    Seconds delay(Seconds from, Seconds to) const;
    /// For how long at a time, at the most.
    Seconds longest(Seconds from, Seconds to) const;
    /// For how long in all the thread that takes pictures in this process was ready and had no
    /// processor.
    Seconds starved(Seconds from, Seconds to) const;

private:
    struct Answer {
        Seconds due;
        Seconds came;
    };

    struct Starved {
        Seconds at;
        Seconds sum; // since that thread began
    };

    static Seconds within(const Answer &answer, Seconds from, Seconds to);
    Seconds sumAt(Seconds moment) const;
    void run();

    Clock &m_clock;
    X11Connection m_connection;
    std::atomic<bool> m_isEnding = false;
    mutable std::mutex m_mutex;
    std::vector<Answer> m_answers;
    std::vector<Starved> m_starved;
    std::thread m_thread;
};

} // namespace velvane
