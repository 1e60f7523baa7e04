#pragma once

#include "base/Seconds.h"

#include <QPointF>
#include <QString>

namespace velvane {

/// One event of mouse or keyboard, heard or posted.
struct InputEvent {
    enum class Kind {
        mouseMoved,
        leftMouseDragged,
        leftMouseDown,
        leftMouseUp,
        rightMouseDown,
        rightMouseUp,
        keyDown,
        keyUp,
    };

    /// The number of a key that has no position on an ANSI keyboard.
    static constexpr quint16 noKey = 0xffff;

    Kind kind = Kind::mouseMoved;
    /// The pointer's place: points, relative to the primary display's top left.
    QPointF point{};
    /// The key's stored number (base/KeyCode.h), of key events only.
    quint16 keyCode = 0;
    /// The Modifier bits held; other bits are never set.
    quint64 modifiers = 0;
    /// What the key types under the layout in use, composed; empty when nothing.
    QString text{};
    /// When it happened, in Clock::now()'s time.
    Seconds time{0};
};

} // namespace velvane
