#include "platform/simulated/SimulatedCapture.h"

#include <utility>

namespace velvane {

namespace {

// The part of a frame that a region covers; the frame itself when there is none.
Frame cut(const Frame &frame, const std::optional<QRectF> &region)
{
    if (!region)
        return frame;
    const QRect part = region->toAlignedRect() & frame.image.rect();
    return {frame.image.copy(part), frame.changed.intersected(part).translated(-part.topLeft()),
            frame.time};
}

} // namespace

SimulatedCapture::SimulatedCapture(SimulatedClock &clock, SimulatedPermissions &permissions)
    : m_clock(clock)
    , m_permissions(permissions)
{}

void SimulatedCapture::show(const QImage &picture, const QRegion &changed)
{
    m_streams.each([&](const Stream &stream) {
        const bool first = !std::exchange(*stream.begun, true);
        const Frame frame{picture, first ? QRegion(picture.rect()) : changed, m_clock.now()};
        stream.captured(cut(frame, stream.request.region));
    });
}

void SimulatedCapture::end(const QString &reason)
{
    m_streams.each([&](const Stream &stream) { stream.ended(reason); });
}

CaptureOpening SimulatedCapture::open(const CaptureRequest &request, Captured captured, Ended ended)
{
    m_requests.push_back(request);
    m_clock.sleep(m_openingTime);
    if (!works())
        return {nullptr, missing()};
    if (!m_permissions.granted(Permission::screenRecording))
        return {nullptr, m_permissions.explanation(Permission::screenRecording)};
    if (!m_error.isEmpty())
        return {nullptr, m_error};
    return {m_streams.add({request, std::move(captured), std::move(ended)}), {}};
}

} // namespace velvane
