#pragma once

#include "platform/Clock.h"
#include "platform/InputTap.h"
#include "platform/x11/X11Listener.h"

namespace velvane {

/// Hears all input through the record extension.
///
/// Events are understood on the listening thread and wait for the main thread, so that a busy main
/// thread loses nothing. When very many wait, a move takes the place of the move before it.
class X11InputTap final : public InputTap {
public:
    X11InputTap(X11Listener &listener, QByteArray display, const Clock &clock);

    QString missing() const override { return m_listener.missing(); }
    Token listen(Heard heard, Lost lost) override;

private:
    X11Listener &m_listener;
    const QByteArray m_display;
    const Clock &m_clock;
};

} // namespace velvane
