#include "platform/x11/X11EventQueue.h"

namespace velvane {

namespace {

// Moves of the same kind: nothing but the place and the time may differ.
bool sameMotion(const InputEvent &a, const InputEvent &b)
{
    using Kind = InputEvent::Kind;
    const bool motion = a.kind == Kind::mouseMoved || a.kind == Kind::leftMouseDragged;
    return motion && a.kind == b.kind && a.modifiers == b.modifiers;
}

} // namespace

bool X11EventQueue::push(const InputEvent &event)
{
    const std::lock_guard lock(m_mutex);
    const bool wasEmpty = m_events.empty();
    if (m_events.size() >= crowd && sameMotion(m_events.back(), event))
        m_events.back() = event;
    else
        m_events.push_back(event);
    return wasEmpty;
}

std::optional<InputEvent> X11EventQueue::pop()
{
    const std::lock_guard lock(m_mutex);
    if (m_events.empty())
        return {};
    InputEvent event = std::move(m_events.front());
    m_events.pop_front();
    return event;
}

std::size_t X11EventQueue::size() const
{
    const std::lock_guard lock(m_mutex);
    return m_events.size();
}

} // namespace velvane
