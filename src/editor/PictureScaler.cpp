#include "editor/PictureScaler.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velvane {

namespace {

constexpr int whole = 256;
// Four channels, each in 16 bits: a share of 256 fits.
constexpr quint64 channels = 0x00ff00ff00ff00ff;
constexpr quint64 half = 0x0080008000800080;

quint64 spread(QRgb pixel)
{
    return (quint64(pixel) | quint64(pixel) << 24) & channels;
}

QRgb packed(quint64 spread)
{
    return QRgb(spread | spread >> 24);
}

quint64 rounded(quint64 sum)
{
    return ((sum + half) >> 8) & channels;
}

} // namespace

PictureScaler::PictureScaler(QSize from, QSize to)
    : m_from(from)
    , m_to(to)
    , m_columns(spans(from.width(), to.width()))
    , m_rows(spans(from.height(), to.height()))
{}

std::vector<PictureScaler::Span> PictureScaler::spans(int from, int to)
{
    std::vector<Span> all;
    all.reserve(std::size_t(to));
    const double step = double(from) / to;
    for (int i = 0; i < to; ++i) {
        const double begin = i * step;
        const double end = std::min(double(from), (i + 1) * step);
        Span span{std::min(int(begin), from - 1), {}};
        const int last = std::clamp(int(std::ceil(end)) - 1, span.first, from - 1);
        // Rounded where each pixel ends, so that the shares sum up.
        int shared = 0;
        for (int pixel = span.first; pixel <= last; ++pixel) {
            const double part = (std::min(end, pixel + 1.0) - begin) / step;
            const int upTo = pixel == last ? whole : int(std::lround(part * whole));
            span.shares.push_back(quint16(upTo - shared));
            shared = upTo;
        }
        all.push_back(std::move(span));
    }
    return all;
}

void PictureScaler::scaleLine(const QRgb *line, const QRect &part, std::vector<quint64> &into) const
{
    for (int x = 0; x < part.width(); ++x) {
        const Span &span = m_columns[std::size_t(part.x() + x)];
        const QRgb *pixel = line + span.first;
        quint64 sum = 0;
        for (const quint16 share : span.shares)
            sum += spread(*pixel++) * share;
        into[std::size_t(x)] = rounded(sum);
    }
}

void PictureScaler::scale(const QImage &picture, const QRect &part, QImage &into,
                          QPoint origin) const
{
    std::vector<quint64> line(std::size_t(part.width()));
    std::vector<quint64> sums(line.size());
    const QRgb opaque = picture.hasAlphaChannel() ? 0 : 0xff000000;
    int lineOf = -1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const Span &span = m_rows[std::size_t(y)];
        std::ranges::fill(sums, 0);
        for (std::size_t i = 0; i < span.shares.size(); ++i) {
            // A row that falls on two is scaled once.
            const int row = span.first + int(i);
            if (std::exchange(lineOf, row) != row)
                scaleLine(reinterpret_cast<const QRgb *>(picture.constScanLine(row)), part, line);
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x] += line[x] * span.shares[i];
        }
        auto *to = reinterpret_cast<QRgb *>(into.scanLine(y - origin.y())) + part.x() - origin.x();
        for (const quint64 sum : sums)
            *to++ = packed(rounded(sum)) | opaque;
    }
}

QRect PictureScaler::reach(const QRect &pixels) const
{
    const auto first = [](int pixel, int from, int to) {
        return int(std::floor(double(pixel) * to / from)) - 1;
    };
    const QPoint begin(first(pixels.left(), m_from.width(), m_to.width()),
                       first(pixels.top(), m_from.height(), m_to.height()));
    const QPoint end(first(pixels.right() + 1, m_from.width(), m_to.width()) + 2,
                     first(pixels.bottom() + 1, m_from.height(), m_to.height()) + 2);
    return QRect(begin, end) & QRect(QPoint(0, 0), m_to);
}

} // namespace velvane
