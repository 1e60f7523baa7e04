#pragma once

#include "media/YuvRows.h"

#include <QImage>
#include <QRegion>
#include <QSize>

#include <vector>

namespace velvane {

/// Keeps a picture as three 4:2:0 planes (I420, BT.709, limited range) and brings up to date only
/// what changed. A picture of odd width or height is padded by repeating its last column or row.
class Yuv420Converter {
public:
    struct Plane {
        const quint8 *samples;
        int stride; ///< bytes from row to row
    };

    /// `size` in pixels, each side at least 1. The planes start out as zeros.
    explicit Yuv420Converter(QSize size, YuvRows::Convert rows = YuvRows::fastest());

    /// Converts the pixels of `changed`, widened to whole chroma samples. The image has the size
    /// given at construction and is opaque; 32-bit formats are read as they are, others copied.
    void convert(const QImage &image, const QRegion &changed);

    /// The size of the luma plane: even.
    QSize paddedSize() const { return m_padded; }
    Plane luma() const { return {m_luma.data(), m_lumaStride}; }
    Plane cb() const { return {m_cb.data(), m_chromaStride}; }
    Plane cr() const { return {m_cr.data(), m_chromaStride}; }

private:
    void convertRect(const QImage &image, const QRect &rect);
    void convertLastColumn(YuvRows::Rows rows, int x);
    YuvRows::Rows rowsAt(const QImage &image, int y);

    QSize m_size;
    QSize m_padded;
    YuvRows::Convert m_rows;
    int m_lumaStride;
    int m_chromaStride;
    std::vector<quint8> m_luma;
    std::vector<quint8> m_cb;
    std::vector<quint8> m_cr;
};

} // namespace velvane
