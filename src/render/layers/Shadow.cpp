#include "render/layers/Shadow.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <vector>

namespace velvane::Shadow {

namespace {

constexpr int offset = 2;
constexpr int reach = 9;
constexpr int spread = 2 * reach;

// exp(−k² ÷ 18) for k = −9 … 9, scaled to a sum of 65,536. Written out and used with whole numbers
// only, so that no machine's arithmetic changes a pixel.
constexpr std::array<quint16, spread + 1> kernel = {97,   249,  574,  1181, 2176, 3588, 5294,
                                                    6989, 8256, 8728, 8256, 6989, 5294, 3588,
                                                    2176, 1181, 574,  249,  97};

// Coverage in 16 bits, with `reach` empty samples before and after each row.
struct Plane {
    Plane(int w, int h)
        : width(w)
        , height(h)
        , stride(static_cast<std::size_t>(w) + spread)
        , samples(stride * h)
    {}

    quint16 *row(int y) { return samples.data() + y * stride; }
    const quint16 *row(int y) const { return samples.data() + y * stride; }

    int width;
    int height;
    std::size_t stride;
    std::vector<quint16> samples;
};

// Transposed, because then the same pass done twice blurs both ways.
Plane blurredRowsTransposed(const Plane &plane)
{
    Plane result(plane.height, plane.width);
    std::vector<quint32> sums(plane.width);
    for (int y = 0; y < plane.height; ++y) {
        std::fill(sums.begin(), sums.end(), 1U << 15);
        for (int k = 0; k <= spread; ++k) {
            const quint16 *in = plane.row(y) + k;
            const quint32 weight = kernel[k];
            for (int x = 0; x < plane.width; ++x)
                sums[x] += weight * in[x];
        }
        for (int x = 0; x < plane.width; ++x)
            result.row(x)[reach + y] = static_cast<quint16>(sums[x] >> 16);
    }
    return result;
}

// The shape's alpha in the middle of a plane that has room for the blur.
Plane coverage(const QImage &shape)
{
    Plane plane(shape.width() + spread, shape.height() + spread);
    for (int y = 0; y < shape.height(); ++y) {
        const auto *in = reinterpret_cast<const QRgb *>(shape.constScanLine(y));
        quint16 *out = plane.row(reach + y) + spread;
        for (int x = 0; x < shape.width(); ++x)
            out[x] = static_cast<quint16>(qAlpha(in[x]) * 257);
    }
    return plane;
}

// 0.45 of the coverage, rounded, as black with that alpha.
QImage shade(const Plane &plane)
{
    QImage image(plane.width, plane.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < plane.height; ++y) {
        const quint16 *in = plane.row(y) + reach;
        auto *out = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < plane.width; ++x)
            out[x] = ((in[x] * 45U + 100U * 257 / 2) / (100U * 257)) << 24;
    }
    return image;
}

} // namespace

QRectF bounds(const QRectF &shape)
{
    return shape.adjusted(-reach, -reach, reach, reach).translated(0, offset);
}

void draw(QPainter &painter, QPoint topLeft, const QImage &shape)
{
    const Plane blurred = blurredRowsTransposed(blurredRowsTransposed(coverage(shape)));
    painter.drawImage(topLeft + QPoint(-reach, offset - reach), shade(blurred));
}

} // namespace velvane::Shadow
