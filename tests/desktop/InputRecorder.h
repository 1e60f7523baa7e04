#pragma once

#include "platform/x11/X11Connection.h"

#include <QPoint>

#include <vector>

namespace velvane {

/// An input event as the server saw it, in root-window pixels and X's own numbers.
struct SeenEvent {
    int type = 0;
    int detail = 0;
    QPoint place;
    /// Modifiers and buttons before the event.
    int state = 0;

    bool operator==(const SeenEvent &) const = default;
};

void PrintTo(const SeenEvent &event, std::ostream *out);

/// Sees all input through the server's record extension, apart from what is under test.
class InputRecorder {
public:
    explicit InputRecorder(const QByteArray &display = qgetenv("DISPLAY"));
    ~InputRecorder();
    InputRecorder(const InputRecorder &) = delete;
    InputRecorder &operator=(const InputRecorder &) = delete;

    /// Waits until the pointer is moved to a place that nothing else in the test goes to; returns
    /// what was seen before that, since the last call.
    std::vector<SeenEvent> until(QPoint place);

private:
    void sync();
    void poll();
    void read(const uint8_t *data, std::size_t size);

    X11Connection m_control;
    X11Connection m_data;
    uint32_t m_context = 0;
    unsigned m_request = 0;
    bool m_started = false;
    std::vector<SeenEvent> m_seen;
};

} // namespace velvane
