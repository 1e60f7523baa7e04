#include "media/Yuv420Converter.h"

#include "base/Geometry.h"

#include <algorithm>
#include <cstring>

namespace velvane {

namespace {

constexpr qsizetype bytesPerPixel = 4;

int even(int side)
{
    return (side + 1) & ~1;
}

// Rows start at multiples of this, so that the encoder copies them with its widest moves.
int alignedStride(int width)
{
    constexpr int alignment = 64;
    return (width + alignment - 1) / alignment * alignment;
}

bool isReadable(QImage::Format format)
{
    return format == QImage::Format_ARGB32_Premultiplied || format == QImage::Format_RGB32
           || format == QImage::Format_ARGB32;
}

} // namespace

Yuv420Converter::Yuv420Converter(QSize size, YuvRows::Convert rows)
    : m_size(size)
    , m_padded(even(size.width()), even(size.height()))
    , m_rows(rows)
    , m_lumaStride(alignedStride(m_padded.width()))
    , m_chromaStride(alignedStride(m_padded.width() / 2))
    , m_luma(size_t(m_lumaStride) * size_t(m_padded.height()))
    , m_cb(size_t(m_chromaStride) * size_t(m_padded.height() / 2))
    , m_cr(m_cb.size())
{}

void Yuv420Converter::convert(const QImage &image, const QRegion &changed)
{
    Q_ASSERT(image.size() == m_size);
    if (changed.isEmpty())
        return;
    const QImage readable =
        isReadable(image.format()) ? image : image.convertToFormat(QImage::Format_RGB32);
    for (const QRect &rect : changed) {
        const QRect inside = rect & QRect({}, m_size);
        if (!inside.isEmpty())
            convertRect(readable, evenAligned(inside));
    }
}

void Yuv420Converter::convertRect(const QImage &image, const QRect &rect)
{
    // The columns that have a right neighbour; at an odd width the last one has none.
    const int end = std::min(rect.x() + rect.width(), m_size.width() & ~1);
    for (int y = rect.y(); y < rect.y() + rect.height(); y += 2) {
        const YuvRows::Rows rows = rowsAt(image, y);
        const int x = rect.x();
        if (x < end) {
            m_rows({rows.top + bytesPerPixel * x, rows.bottom + bytesPerPixel * x, rows.lumaTop + x,
                    rows.lumaBottom + x, rows.cb + x / 2, rows.cr + x / 2},
                   end - x);
        }
        if (rect.x() + rect.width() > m_size.width())
            convertLastColumn(rows, m_size.width() - 1);
    }
}

void Yuv420Converter::convertLastColumn(YuvRows::Rows rows, int x)
{
    quint8 top[2 * bytesPerPixel];
    quint8 bottom[2 * bytesPerPixel];
    for (int i = 0; i < 2; ++i) {
        std::memcpy(top + i * bytesPerPixel, rows.top + x * bytesPerPixel, bytesPerPixel);
        std::memcpy(bottom + i * bytesPerPixel, rows.bottom + x * bytesPerPixel, bytesPerPixel);
    }
    YuvRows::convertPlain(
        {top, bottom, rows.lumaTop + x, rows.lumaBottom + x, rows.cb + x / 2, rows.cr + x / 2}, 2);
}

YuvRows::Rows Yuv420Converter::rowsAt(const QImage &image, int y)
{
    const int below = std::min(y + 1, m_size.height() - 1);
    quint8 *luma = m_luma.data() + size_t(y) * size_t(m_lumaStride);
    const size_t chroma = size_t(y / 2) * size_t(m_chromaStride);
    return {image.constScanLine(y), image.constScanLine(below), luma,
            luma + m_lumaStride,    m_cb.data() + chroma,       m_cr.data() + chroma};
}

} // namespace velvane
