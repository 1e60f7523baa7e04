#pragma once

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace velvane {

/// A picture like the renderer's, of one colour.
inline QImage blank(QSize size, QColor colour)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

/// What `draw` makes of a picture of one colour.
template <class Draw>
QImage drawnOn(QSize size, QColor colour, Draw draw)
{
    QImage image = blank(size, colour);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/// The largest difference of any channel of two pixels.
inline int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

/// The largest difference of any channel anywhere in two pictures of one size.
inline int difference(const QImage &a, const QImage &b)
{
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            most = std::max(most, difference(a.pixel(x, y), b.pixel(x, y)));
    return most;
}

/// How many pixels outside the region differ.
inline int changesOutside(const QRegion &region, const QImage &before, const QImage &after)
{
    int changes = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) && !region.contains(QPoint(x, y)))
                ++changes;
    return changes;
}

/// A picture in real numbers, composed slowly and exactly, to compare drawings with.
class ExactPicture {
public:
    ExactPicture(QSize size, QColor colour)
        : m_size(size)
        , m_pixels(size.width() * size.height(), {colour.redF(), colour.greenF(), colour.blueF()})
    {}

    using Map = std::vector<double>;

    /// The share of each pixel where `inside(point)` holds, from 16 × 16 samples.
    template <class Inside>
    Map coverage(Inside inside) const
    {
        Map map;
        for (int y = 0; y < m_size.height(); ++y)
            for (int x = 0; x < m_size.width(); ++x)
                map.push_back(share(QPointF(x, y), inside));
        return map;
    }

    /// The map spread by a Gaussian and moved down by whole pixels.
    Map blurred(const Map &map, double deviation, int down) const
    {
        return moved(blurredOneWay(blurredOneWay(map, deviation, 1, 0), deviation, 0, 1), down);
    }

    void paint(const Map &coverage, QColor colour, double alpha)
    {
        const double source[] = {colour.redF(), colour.greenF(), colour.blueF()};
        for (std::size_t i = 0; i < m_pixels.size(); ++i)
            for (int c = 0; c < 3; ++c)
                m_pixels[i][c] += (source[c] - m_pixels[i][c]) * coverage[i] * alpha;
    }

    QImage image() const
    {
        QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
        for (int i = 0; i < static_cast<int>(m_pixels.size()); ++i) {
            const auto level = [&](int c) { return static_cast<int>(m_pixels[i][c] * 255 + 0.5); };
            image.setPixel(i % m_size.width(), i / m_size.width(),
                           qRgb(level(0), level(1), level(2)));
        }
        return image;
    }

private:
    template <class Inside>
    static double share(QPointF corner, Inside inside)
    {
        int hits = 0;
        for (int j = 0; j < 16; ++j)
            for (int i = 0; i < 16; ++i)
                hits += inside(corner + QPointF(i + 0.5, j + 0.5) / 16) ? 1 : 0;
        return hits / 256.0;
    }

    Map blurredOneWay(const Map &map, double deviation, int dx, int dy) const
    {
        const int reach = static_cast<int>(6 * deviation);
        double sum = 0;
        for (int k = -reach; k <= reach; ++k)
            sum += std::exp(-k * k / (2 * deviation * deviation));
        Map result(map.size());
        for (int y = 0; y < m_size.height(); ++y)
            for (int x = 0; x < m_size.width(); ++x)
                for (int k = -reach; k <= reach; ++k)
                    result[index(x, y)] += at(map, x + k * dx, y + k * dy)
                                           * std::exp(-k * k / (2 * deviation * deviation)) / sum;
        return result;
    }

    Map moved(const Map &map, int down) const
    {
        Map result(map.size());
        for (int y = 0; y < m_size.height(); ++y)
            for (int x = 0; x < m_size.width(); ++x)
                result[index(x, y)] = at(map, x, y - down);
        return result;
    }

    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * m_size.width() + x;
    }
    double at(const Map &map, int x, int y) const
    {
        return QRect(QPoint(), m_size).contains(x, y) ? map[index(x, y)] : 0;
    }

    QSize m_size;
    std::vector<std::array<double, 3>> m_pixels;
};

} // namespace velvane
