#pragma once

#include "base/Frame.h"
#include "platform/Facility.h"
#include "platform/Subscription.h"

#include <QRectF>

#include <functional>
#include <optional>

namespace velvane {

/// What of the screen is wanted.
struct CaptureRequest {
    /// Points relative to the primary display's top left, clipped to that display; without it the
    /// whole primary display.
    std::optional<QRectF> region;
    bool showsCursor = false;
    /// Pictures a second, at most.
    double maxRate = 60;
};

/// A stream that runs, or why it does not.
struct CaptureOpening {
    /// Null on failure.
    Token stream;
    /// One sentence; empty on success.
    QString error;
};

/// Pictures of the primary display without this program's own windows, at the display's own pixels.
class ScreenCapture : public Facility {
public:
    using Captured = std::function<void(const Frame &)>;
    using Ended = std::function<void(const QString &reason)>;

    /// Opens a stream. Main thread; may block for some hundredths of a second.
    ///
    /// `captured` is called on the stream's own thread, one call at a time: the first picture soon,
    /// then one after each change, and the last one again at least once a second while nothing
    /// changes. Frame::time is when the picture was taken, in Clock::now()'s time. A slow call
    /// delays the next picture and loses no change. The picture's size may change with the
    /// display's.
    ///
    /// `ended` is called once, on the stream's thread, if the system ends the stream.
    ///
    /// The stream may be destroyed on any thread but its own; that waits for a call under way.
    virtual CaptureOpening open(const CaptureRequest &request, Captured captured, Ended ended) = 0;
};

} // namespace velvane
