#pragma once

#include "base/Frame.h"

#include <mutex>
#include <optional>
#include <utility>

namespace velvane {

/// Between a stream's thread and a slower reader: holds the newest picture, with all that has
/// changed since the reader took the last one, so that pictures never pile up.
class FrameMailbox {
public:
    /// Leaves a picture. True when there was none: the reader wants to be told.
    bool put(const Frame &frame)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_frame) {
            m_frame = frame;
            return true;
        }
        const bool isResized = frame.image.size() != m_frame->image.size();
        const QRegion changed = isResized ? frame.image.rect() : frame.changed + m_frame->changed;
        m_frame = Frame{frame.image, changed, frame.time};
        return false;
    }

    /// Takes the picture out; nothing when there is none.
    std::optional<Frame> take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_frame, std::nullopt);
    }

private:
    std::mutex m_mutex;
    std::optional<Frame> m_frame;
};

} // namespace velvane
