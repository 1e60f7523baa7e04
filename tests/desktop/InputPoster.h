#pragma once

#include "platform/x11/X11Connection.h"

#include <QPoint>

namespace velvane {

/// Another program that posts input, over a connection of its own: X's own numbers, root pixels.
/// Each call returns once the server has done it.
class InputPoster {
public:
    explicit InputPoster(const QByteArray &display = qgetenv("DISPLAY")) : m_connection(display) {}

    void move(QPoint place);
    void button(int button, bool down);
    void click(int button);
    void key(int code, bool down);
    void tap(int code);
    /// Taps a key while others are held.
    void chord(std::initializer_list<int> held, int code);

private:
    void fake(int type, int detail, QPoint place = {});

    const X11Connection m_connection;
};

} // namespace velvane
