#pragma once

#include "platform/ScreenCapture.h"
#include "platform/simulated/Listeners.h"
#include "platform/simulated/Simulated.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedPermissions.h"

#include <vector>

namespace velvane {

/// Hands out the pictures that a test shows, at once and on its thread; refuses while screen
/// recording is not granted.
class SimulatedCapture final : public Simulated<ScreenCapture> {
public:
    SimulatedCapture(SimulatedClock &clock, SimulatedPermissions &permissions);

    /// The whole primary display looks like this now; each open stream gets its region of it,
    /// stamped with the virtual time. `changed` is in pixels of the picture; a stream's first
    /// picture is all new whatever it says.
    void show(const QImage &picture, const QRegion &changed);
    void show(const QImage &picture) { show(picture, picture.rect()); }
    /// The system ends all streams.
    void end(const QString &reason);
    /// Every open() fails with this error; empty lets them succeed again.
    void failWith(const QString &error) { m_error = error; }

    /// How long every open() takes.
    void setOpeningTime(Seconds duration) { m_openingTime = duration; }

    /// What was asked for so far.
    const std::vector<CaptureRequest> &requests() const { return m_requests; }
    int streams() const { return m_streams.count(); }

    CaptureOpening open(const CaptureRequest &request, Captured captured, Ended ended) override;

private:
    struct Stream {
        CaptureRequest request;
        Captured captured;
        Ended ended;
        /// Shared, since it lives on in the list.
        std::shared_ptr<bool> begun = std::make_shared<bool>(false);
    };
    SimulatedClock &m_clock;
    SimulatedPermissions &m_permissions;
    Listeners<Stream> m_streams;
    std::vector<CaptureRequest> m_requests;
    QString m_error;
    Seconds m_openingTime{0};
};

} // namespace velvane
