#include "model/Picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

namespace velvane::Picture {

namespace {

constexpr int maxSide = 16384;
constexpr int maxBytesPerPixel = 8; // four channels of 16 bits
constexpr int maxMegabytes = maxSide / 1024 * (maxSide / 1024) * maxBytesPerPixel;

} // namespace

QImage decoded(const QByteArray &bytes)
{
    // Qt's own bound of 128 MB would drop large screens without a word. It is global.
    if (QImageReader::allocationLimit() < maxMegabytes)
        QImageReader::setAllocationLimit(maxMegabytes);
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > maxSide || size.height() > maxSide)
        return {};
    return reader.read();
}

std::optional<QByteArray> encoded(const QImage &picture)
{
    if (picture.isNull())
        return {};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !QImageWriter(&buffer, "png").write(picture))
        return {};
    return bytes;
}

} // namespace velvane::Picture
