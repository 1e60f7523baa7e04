#pragma once

#include "base/Frame.h"

#include <QSize>

namespace velvane {

/// Brings pictures to the one size that a movie has. One thread at a time.
///
/// A picture up to a pixel wider or higher loses its last column or row; any other is shown whole,
/// in its own shape, with black beside it.
class PictureFit {
public:
    /// In pixels.
    explicit PictureFit(QSize size) : m_size(size) {}

    /// The frame in the movie's size, its changed region too. Valid until the frame given goes or
    /// the next call.
    Frame fitted(const Frame &frame);

private:
    Frame scaled(const Frame &frame);

    QSize m_size;
    QSize m_last; ///< of the last picture given
    QImage m_canvas;
};

} // namespace velvane
