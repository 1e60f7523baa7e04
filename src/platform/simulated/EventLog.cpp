#include "platform/simulated/EventLog.h"

namespace velvane {

namespace {

QString name(InputEvent::Kind kind)
{
    switch (kind) {
    case InputEvent::Kind::mouseMoved:
        return "mouseMoved";
    case InputEvent::Kind::leftMouseDragged:
        return "leftMouseDragged";
    case InputEvent::Kind::leftMouseDown:
        return "leftMouseDown";
    case InputEvent::Kind::leftMouseUp:
        return "leftMouseUp";
    case InputEvent::Kind::rightMouseDown:
        return "rightMouseDown";
    case InputEvent::Kind::rightMouseUp:
        return "rightMouseUp";
    case InputEvent::Kind::keyDown:
        return "keyDown";
    case InputEvent::Kind::keyUp:
        return "keyUp";
    }
    return {};
}

bool isKey(const InputEvent &event)
{
    return event.kind == InputEvent::Kind::keyDown || event.kind == InputEvent::Kind::keyUp;
}

} // namespace

QString line(const InputEvent &event)
{
    if (!isKey(event))
        return QStringLiteral("%1 %2,%3")
            .arg(name(event.kind))
            .arg(event.point.x())
            .arg(event.point.y());
    if (!event.text.isEmpty())
        return QStringLiteral("%1 \"%2\"").arg(name(event.kind), event.text);
    const QString key = QStringLiteral("%1 %2").arg(name(event.kind)).arg(event.keyCode);
    return event.modifiers ? key + " +0x" + QString::number(event.modifiers, 16) : key;
}

void EventLog::add(const InputEvent &event)
{
    const std::lock_guard lock(m_mutex);
    m_posted.push_back(event);
    m_lines << line(event);
}

void EventLog::add(const QString &text)
{
    const std::lock_guard lock(m_mutex);
    m_lines << text;
}

std::vector<InputEvent> EventLog::posted() const
{
    const std::lock_guard lock(m_mutex);
    return m_posted;
}

QStringList EventLog::lines() const
{
    const std::lock_guard lock(m_mutex);
    return m_lines;
}

void EventLog::clear()
{
    const std::lock_guard lock(m_mutex);
    m_posted.clear();
    m_lines.clear();
}

} // namespace velvane
