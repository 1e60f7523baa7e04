#pragma once

#include <QImage>
#include <QRandomGenerator>
#include <QRegion>

namespace velvane {

/// A picture like a screen's (gradients, lines of text-like edges) that changes bit by bit.
class MovieScene {
public:
    explicit MovieScene(QSize size, quint32 seed = 1)
        : m_random(seed)
        , m_image(size, QImage::Format_ARGB32_Premultiplied)
    {
        restore(m_image.rect());
    }

    const QImage &image() const { return m_image; }
    QRandomGenerator &random() { return m_random; }

    /// Fills the part of the rectangle that lies in the picture.
    QRegion fill(const QRect &rect, QRgb colour)
    {
        return paint(rect, [colour](int, int) { return colour; });
    }

    /// Puts the backdrop back.
    QRegion restore(const QRect &rect) { return paint(rect, backdrop); }

    /// Changes nothing, a pixel, or one or two rectangles that may touch the edges.
    QRegion changeAtRandom()
    {
        const int kind = m_random.bounded(4);
        if (kind == 0)
            return {};
        if (kind == 1)
            return fill(QRect(randomPoint(), QSize(1, 1)), randomColour());
        QRegion changed;
        for (int i = 1; i < kind; ++i) {
            const QRect rect(randomPoint() - QPoint(10, 10),
                             QSize(m_random.bounded(1, 60), m_random.bounded(1, 40)));
            changed += m_random.bounded(2) ? fill(rect, randomColour()) : restore(rect);
        }
        return changed;
    }

private:
    // Text in every second column of 64 pixels, two lines of six.
    static QRgb backdrop(int x, int y)
    {
        const bool isText = x / 64 % 2 == 0 && (y / 9 % 6 == 1 || y / 9 % 6 == 3);
        const bool ink = isText && x / 3 % 5 < 2 && (x * 7 + y * 3) % 11 < 6;
        return ink ? qRgb(30, 32, 40) : qRgb(200 + x * 40 / 16'384, 210 + y * 40 / 16'384, 235);
    }

    template <typename Colour>
    QRegion paint(const QRect &rect, Colour colour)
    {
        const QRect inside = rect & m_image.rect();
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
            for (int x = inside.left(); x <= inside.right(); ++x)
                line[x] = colour(x, y);
        }
        return inside;
    }

    QPoint randomPoint()
    {
        return {m_random.bounded(m_image.width()), m_random.bounded(m_image.height())};
    }

    QRgb randomColour() { return m_random.generate() | 0xff000000u; }

    QRandomGenerator m_random;
    QImage m_image;
};

} // namespace velvane
