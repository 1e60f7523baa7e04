#include "media/MoviePicture.h"

#include "media/ColorConversion.h"

extern "C" {
#include <libavutil/frame.h>
}

namespace velvane {

namespace {

// The converter's quick paths write whole groups of pixels.
constexpr int groupOfPixels = 16;

} // namespace

MoviePicture::MoviePicture(std::shared_ptr<const AVFrame> planes, const PictureShape &shape,
                           Seconds time)
    : m_planes(std::move(planes))
    , m_shape(shape)
    , m_time(time)
{}

QImage MoviePicture::image() const
{
    if (isNull())
        return {};
    const QSize size = m_shape.size;
    const int room = (size.width() + groupOfPixels - 1) / groupOfPixels * groupOfPixels;
    QImage image(room, size.height(), QImage::Format_RGB32);
    if (image.isNull()
        || !ColorConversion::toPixels(*m_planes, image.bits(), int(image.bytesPerLine()),
                                      size.width(), size.height()))
        return {};
    if (room != size.width())
        image = image.copy(QRect({}, size));
    return m_shape.turn.isIdentity() ? image : image.transformed(m_shape.turn);
}

} // namespace velvane
