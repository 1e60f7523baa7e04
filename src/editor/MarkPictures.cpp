#include "editor/MarkPictures.h"

#include "editor/Theme.h"

#include <QPainter>

namespace velvane {

namespace {

// Of pictures kept; beyond, all are made anew as they are needed.
constexpr qsizetype mostBytes = 32 << 20;
constexpr float markerOpacity = 0.72F;
constexpr double borderWidth = 1.5;
// What a number leaves free of its marker's width.
constexpr double besideNumber = 5;

// The font of a marker's number, smaller for numbers too long for the circle.
QFont numberFont(const QString &number, bool active, double diameter)
{
    QFont font = Theme::font(active ? TextSize::secondary : TextSize::small, QFont::DemiBold);
    const double room = diameter - besideNumber;
    const double width = QFontMetricsF(font).horizontalAdvance(number);
    if (width > room && font.pixelSize() > 0)
        font.setPixelSize(std::max(6, int(font.pixelSize() * room / width)));
    else if (width > room)
        font.setPointSizeF(font.pointSizeF() * room / width);
    return font;
}

void drawMarker(QPainter &painter, const QRectF &rect, bool active, const QString &number)
{
    constexpr double inset = borderWidth / 2;
    painter.setPen(QPen(Qt::white, borderWidth));
    painter.setBrush(active ? Theme::instance().colors().accent
                            : QColor::fromRgbF(0, 0, 0, markerOpacity));
    painter.drawEllipse(rect.adjusted(inset, inset, -inset, -inset));
    painter.setFont(numberFont(number, active, rect.width()));
    painter.setPen(Qt::white);
    painter.drawText(rect, Qt::AlignCenter, number);
}

void drawCapsule(QPainter &painter, const QRectF &rect, const QString &text)
{
    const double radius = rect.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(rect, radius, radius);
    painter.setFont(Theme::font(TextSize::small, QFont::Medium));
    painter.setPen(Qt::white);
    painter.drawText(rect, Qt::AlignCenter, text);
}

} // namespace

void MarkPictures::clear()
{
    m_pictures.clear();
    m_bytes = 0;
}

void MarkPictures::draw(QPainter &painter, const QTransform &toDevice,
                        const CanvasMarks::Marker &marker)
{
    draw(painter, toDevice, marker.rect(), marker.active ? Look::activeMarker : Look::marker,
         marker.number);
}

void MarkPictures::draw(QPainter &painter, const QTransform &toDevice,
                        const CanvasMarks::Capsule &capsule)
{
    draw(painter, toDevice, capsule.rect, Look::capsule, capsule.text);
}

void MarkPictures::draw(QPainter &painter, const QTransform &toDevice, const QRectF &rect,
                        Look look, const QString &text)
{
    const double scale = toDevice.m11();
    if (scale != m_scale) {
        clear();
        m_scale = scale;
    }
    const QPointF at = toDevice.map(rect.topLeft());
    const QPoint pixel(qRound(at.x()), qRound(at.y()));
    const std::pair key(static_cast<int>(look), text);
    auto known = m_pictures.constFind(key);
    if (known == m_pictures.constEnd()) {
        if (m_bytes > mostBytes)
            clear();
        known = m_pictures.insert(key, picture(rect.size(), scale, look, text));
        m_bytes += known->sizeInBytes();
    }
    painter.drawImage(pixel, *known);
}

QImage MarkPictures::picture(QSizeF size, double scale, Look look, const QString &text)
{
    const QSizeF pixels = size * scale;
    QImage image(static_cast<int>(std::ceil(pixels.width())),
                 static_cast<int>(std::ceil(pixels.height())), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const QRectF rect({0, 0}, size);
    if (look == Look::capsule)
        drawCapsule(painter, rect, text);
    else
        drawMarker(painter, rect, look == Look::activeMarker, text);
    return image;
}

} // namespace velvane
