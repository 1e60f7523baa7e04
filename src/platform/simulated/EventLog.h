#pragma once

#include "platform/InputEvent.h"

#include <QStringList>

#include <mutex>
#include <vector>

namespace velvane {

/// What was done to a simulated desktop, in order. Any thread.
class EventLog {
public:
    void add(const InputEvent &event);
    void add(const QString &line);

    /// The input events alone, with everything about them.
    std::vector<InputEvent> posted() const;

    /// All that was done, one readable line each: "mouseMoved 10,20", "activate Notes".
    QStringList lines() const;

    void clear();

private:
    mutable std::mutex m_mutex;
    std::vector<InputEvent> m_posted;
    QStringList m_lines;
};

/// An event as a line: "leftMouseDown 10,20", "keyDown 8 +0x100000", "keyDown "é"".
QString line(const InputEvent &event);

} // namespace velvane
