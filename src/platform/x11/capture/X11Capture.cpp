#include "platform/x11/capture/X11Capture.h"

#include "platform/x11/X11Permissions.h"
#include "platform/x11/capture/X11CaptureStream.h"

#include <QCoreApplication>

namespace velvane {

X11Capture::X11Capture(const X11Connection &connection, QByteArray display, const Clock &clock,
                       FindOwnWindows ours)
    : m_connection(connection)
    , m_display(std::move(display))
    , m_clock(clock)
    , m_findOwnWindows(std::move(ours))
    , m_harvest(connection)
{}

QString X11Capture::missing() const
{
    if (m_connection.isOpen())
        return {};
    return QCoreApplication::translate("X11Desktop", "There is no display.");
}

CaptureOpening X11Capture::open(const CaptureRequest &request, Captured captured, Ended ended)
{
    QString refusal = missing();
    if (refusal.isEmpty())
        refusal = X11Permissions(m_connection, false).explanation(Permission::screenRecording);
    if (!refusal.isEmpty())
        return {nullptr, refusal};
    m_harvest.refresh();
    const X11CaptureSource source{m_display, m_findOwnWindows(), m_harvest.pixmap()};
    auto stream = std::make_unique<X11CaptureStream>(
        source, request, m_clock,
        X11CaptureStream::Listener{std::move(captured), std::move(ended)});
    refusal = stream->refusal();
    if (!refusal.isEmpty())
        return {nullptr, refusal};
    return {std::move(stream), {}};
}

} // namespace velvane
