#pragma once

#include "base/Seconds.h"

#include <QImage>
#include <QRegion>

namespace velvane {

/// A picture, what of it differs from the picture before, and its moment.
///
/// The image is shared: who keeps a Frame makes its painter's next change copy every pixel.
struct Frame {
    QImage image;
    /// In pixels of the image; the whole image for the first frame of a sequence.
    QRegion changed;
    Seconds time{0};
};

} // namespace velvane
