#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace velvane {

/// Makes a picture smaller by averaging what falls on each pixel.
///
/// Each pixel depends on the picture's pixels below it only, so that a part scaled anew equals the
/// same part of the whole.
class PictureScaler {
public:
    /// `from` is at least as large as `to`; neither is empty.
    PictureScaler(QSize from, QSize to);

    /// Scales what falls on `part`, in pixels of the small picture, into an image whose first pixel
    /// is the small picture's `origin`. Both images have 32 bits a pixel, alpha premultiplied or
    /// absent.
    void scale(const QImage &picture, const QRect &part, QImage &into, QPoint origin) const;

    /// Which pixels of the small picture depend on these of the large one.
    QRect reach(const QRect &pixels) const;

private:
    /// The large pixels that fall on a small one, and their shares, which sum up to 256.
    struct Span {
        int first = 0;
        std::vector<quint16> shares;
    };

    static std::vector<Span> spans(int from, int to);
    void scaleLine(const QRgb *line, const QRect &part, std::vector<quint64> &into) const;

    QSize m_from;
    QSize m_to;
    std::vector<Span> m_columns;
    std::vector<Span> m_rows;
};

} // namespace velvane
