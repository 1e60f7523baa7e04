#pragma once

#include "base/Frame.h"

namespace velvane {

/// Turns a sequence of frames into a movie file. One thread at a time; throws MovieError.
class MovieWriter {
public:
    virtual ~MovieWriter() = default;

    /// Adds one frame. Its changed region must cover every pixel that differs from the frame
    /// before; the image is not kept beyond the encoding.
    virtual void append(const Frame &frame) = 0;

    /// Completes the file. Without it the destructor closes the file with the frames done so far.
    virtual void finish() = 0;
};

} // namespace velvane
