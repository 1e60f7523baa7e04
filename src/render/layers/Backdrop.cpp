#include "render/layers/Backdrop.h"

#include <QPainter>

#include <cmath>

namespace velvane::Backdrop {

namespace {

void drawGradient(QPainter &painter, const QRectF &canvas)
{
    QLinearGradient gradient(canvas.topLeft(), canvas.bottomLeft());
    gradient.setColorAt(0, QColor::fromRgbF(0.10F, 0.11F, 0.16F));
    gradient.setColorAt(1, QColor::fromRgbF(0.16F, 0.18F, 0.26F));
    painter.fillRect(canvas.toAlignedRect(), gradient);
}

void drawPicture(QPainter &painter, const QRectF &canvas, const QImage &picture)
{
    if (picture.hasAlphaChannel())
        painter.fillRect(canvas.toAlignedRect(), Qt::black);
    // The painter samples single pixels when it shrinks a picture; scaling first averages them.
    const QSize size(static_cast<int>(std::ceil(canvas.width())),
                     static_cast<int>(std::ceil(canvas.height())));
    const QImage fitted = picture.size() == size ? picture
                                                 : picture.scaled(size, Qt::IgnoreAspectRatio,
                                                                  Qt::SmoothTransformation);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(canvas, fitted);
}

} // namespace

QRectF bounds(QSizeF canvas)
{
    return {0, std::floor(canvas.height()) - canvas.height(), canvas.width(), canvas.height()};
}

void draw(QPainter &painter, const Snapshot &snap)
{
    const QRectF canvas = bounds(snap.canvasSize);
    if (snap.background.isNull())
        drawGradient(painter, canvas);
    else
        drawPicture(painter, canvas, snap.background);
}

} // namespace velvane::Backdrop
