#pragma once

#include "platform/Clock.h"
#include "platform/ScreenCapture.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/capture/X11Harvest.h"
#include "platform/x11/capture/X11OwnWindows.h"

namespace velvane {

/// The pictures of an X server's primary display.
class X11Capture final : public ScreenCapture {
public:
    using FindOwnWindows = std::function<X11OwnWindows()>;

    /// Made before our first window shows. Each stream has a connection of its own; `connection`
    /// answers what is asked before.
    X11Capture(const X11Connection &connection, QByteArray display, const Clock &clock,
               FindOwnWindows ours = &X11OwnWindows::ofThisProcess);

    QString missing() const override;
    CaptureOpening open(const CaptureRequest &request, Captured captured, Ended ended) override;

private:
    const X11Connection &m_connection;
    const QByteArray m_display;
    const Clock &m_clock;
    const FindOwnWindows m_findOwnWindows;
    X11Harvest m_harvest;
};

} // namespace velvane
