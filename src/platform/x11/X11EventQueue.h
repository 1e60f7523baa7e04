#pragma once

#include "platform/InputEvent.h"

#include <deque>
#include <mutex>
#include <optional>

namespace velvane {

/// What has been heard on one thread and waits to be told on another, in order.
class X11EventQueue {
public:
    /// With more than this waiting, a motion replaces the motion before it: some minutes of a busy
    /// pointer, about ten megabytes. Keys and buttons are never dropped.
    static constexpr std::size_t crowd = 100'000;

    /// True when the queue was empty before: the reader is to be woken.
    bool push(const InputEvent &event);

    std::optional<InputEvent> pop();
    std::size_t size() const;

private:
    mutable std::mutex m_mutex;
    std::deque<InputEvent> m_events;
};

} // namespace velvane
