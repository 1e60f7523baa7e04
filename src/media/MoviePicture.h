#pragma once

#include "base/Seconds.h"

#include <QImage>
#include <QTransform>

#include <memory>

struct AVFrame;

namespace velvane {

/// How a movie's pictures are to be shown.
struct PictureShape {
    QSize size;      ///< in square pixels, before it is turned
    QTransform turn; ///< quarter turns and mirroring only

    /// As it is seen.
    QSize turnedSize() const { return turn.mapRect(QRect({}, size)).size(); }
};

/// A movie's picture, kept as it was decoded: 8-bit 4:2:0 planes with their colour matrix and
/// range, 1.5 bytes a pixel. A value, cheap to copy; any thread may read it.
class MoviePicture {
public:
    MoviePicture() = default;
    /// The frame is YUV420P or YUVJ420P; its planes are shared, not copied.
    MoviePicture(std::shared_ptr<const AVFrame> planes, const PictureShape &shape, Seconds time);

    bool isNull() const { return !m_planes; }
    /// When the movie shows it, from the movie's start.
    Seconds time() const { return m_time; }
    /// As it is seen, in pixels.
    QSize size() const { return m_shape.turnedSize(); }
    /// Converts to opaque RGB; a null image when there is no memory for it.
    QImage image() const;

private:
    std::shared_ptr<const AVFrame> m_planes;
    PictureShape m_shape;
    Seconds m_time{0};
};

} // namespace velvane
