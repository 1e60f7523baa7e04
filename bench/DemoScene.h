#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QRegion>

#include <cmath>

namespace velvane {

/// What a demo's movie typically shows, without its renderer: of each 100 frames 32 move a cursor
/// of 60 × 70 pixels, 10 a ripple of 120 × 120, 16 a strip of 600 × 70 that is typed into, with the
/// cursor moving in 10 of them too; 42 are still.
class DemoScene {
public:
    explicit DemoScene(QSize size)
        : m_backdrop(drawBackdrop(size))
        , m_image(m_backdrop.copy())
        , m_cursor(drawCursor())
    {}

    const QImage &image() const { return m_image; }

    /// Goes to frame i; returns what may differ from frame i - 1.
    QRegion show(int i)
    {
        const int phase = i % 100;
        QRegion changed;
        if (phase < 32 || (phase >= 42 && phase < 52))
            changed += move(i);
        if (phase >= 32 && phase < 42)
            changed += m_ripple = around(m_position.toPoint(), 60);
        else if (phase == 42)
            changed += m_ripple;
        if (phase >= 42 && phase < 58)
            changed += strip();
        if (changed.isEmpty())
            return changed;
        paint(changed, phase);
        return changed;
    }

private:
    static QRect around(QPoint centre, int radius)
    {
        return {centre - QPoint(radius, radius), QSize(2 * radius, 2 * radius)};
    }

    QRect cursorRect() const { return {m_position.toPoint() - QPoint(8, 8), QSize(60, 70)}; }

    QRect strip() const { return {(m_image.width() - 600) / 2, m_image.height() - 110, 600, 70}; }

    QRegion move(int i)
    {
        const QRegion before(cursorRect());
        const double angle = i * 0.021;
        m_position = QPointF(m_image.width() * (0.5 + 0.42 * std::cos(angle)),
                             m_image.height() * (0.45 + 0.38 * std::sin(angle * 1.7)));
        return before + cursorRect();
    }

    void paint(const QRegion &changed, int phase)
    {
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const QRect &rect : changed)
            painter.drawImage(rect, m_backdrop, rect);
        if (phase >= 42 && phase < 58)
            paintCaption(painter, phase - 42);
        if (phase >= 32 && phase < 42) {
            const double age = (phase - 31) / 11.0;
            painter.setPen(QPen(QColor(10, 132, 255, int(200 * (1 - age))), 5));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(m_position, 10 + 45 * age, 10 + 45 * age);
        }
        painter.drawImage(m_position - QPointF(8, 8), m_cursor);
    }

    void paintCaption(QPainter &painter, int letters) const
    {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(20, 20, 24, 200));
        painter.drawRoundedRect(strip(), 35, 35);
        QRandomGenerator random(5);
        drawWords(painter, random, QRect(strip().left() + 40, strip().top() + 24, letters * 30, 24),
                  Qt::white);
    }

    // Strokes as thin and sharp as those of letters.
    static void drawWords(QPainter &painter, QRandomGenerator &random, const QRect &line,
                          const QColor &ink)
    {
        painter.setPen(QPen(ink, std::max(1.2, line.height() / 9.0)));
        painter.setBrush(Qt::NoBrush);
        const double width = line.height() * 0.55;
        for (double x = line.left(); x + width < line.right(); x += width * 1.25) {
            if (random.bounded(6) == 0)
                continue;
            QPainterPath letter(QPointF(x, line.bottom() - random.bounded(line.height() / 2)));
            for (int i = 0; i < 3; ++i)
                letter.lineTo(x + random.bounded(width),
                              line.top() + random.bounded(line.height()));
            painter.drawPath(letter);
        }
    }

    static QImage drawBackdrop(QSize size)
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient sky(0, 0, size.width(), size.height());
        sky.setColorAt(0, QColor(94, 120, 180));
        sky.setColorAt(1, QColor(220, 190, 170));
        painter.fillRect(image.rect(), sky);
        painter.setPen(QPen(QColor(200, 200, 205), 1));
        painter.setBrush(QColor(250, 250, 252));
        const QRect window = image.rect().adjusted(size.width() / 10, size.height() / 10,
                                                   -size.width() / 10, -size.height() / 6);
        painter.drawRoundedRect(window, 10, 10);
        painter.fillRect(QRect(window.left(), window.top() + 10, window.width(), 30),
                         QColor(232, 232, 236));
        QRandomGenerator random(3);
        for (int y = window.top() + 70; y + 30 < window.bottom(); y += 28) {
            const int width = random.bounded(window.width() / 4, window.width() * 3 / 4);
            if (random.bounded(4))
                drawWords(painter, random, QRect(window.left() + 40, y, width, 12),
                          QColor(40, 40, 46));
        }
        return image;
    }

    static QImage drawCursor()
    {
        QImage image(60, 70, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int blur = 8; blur > 0; --blur) {
            painter.setPen(QPen(QColor(0, 0, 0, 9), blur));
            painter.drawPolygon(arrow().translated(0, 3));
        }
        painter.setPen(QPen(Qt::white, 3));
        painter.setBrush(Qt::black);
        painter.drawPolygon(arrow());
        return image;
    }

    static QPolygonF arrow()
    {
        return QPolygonF({{8, 8}, {8, 46}, {17, 38}, {23, 52}, {30, 49}, {24, 36}, {36, 36}});
    }

    QImage m_backdrop;
    QImage m_image;
    QImage m_cursor;
    QPointF m_position{-100, -100};
    QRect m_ripple;
};

} // namespace velvane
