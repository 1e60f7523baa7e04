#include "editor/TabularText.h"

#include <QPainter>

namespace velvane::TabularText {

namespace {

qreal digitWidth(const QFontMetricsF &metrics)
{
    qreal widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

qreal advance(const QFontMetricsF &metrics, qreal digit, QChar character)
{
    return character.isDigit() ? digit : metrics.horizontalAdvance(character);
}

} // namespace

qreal width(const QFontMetricsF &metrics, const QString &text)
{
    const qreal digit = digitWidth(metrics);
    qreal total = 0;
    for (const QChar character : text)
        total += advance(metrics, digit, character);
    return total;
}

void draw(QPainter &painter, const QRectF &in, Qt::AlignmentFlag alignment, const QString &text)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const qreal spare = in.width() - width(metrics, text);
    const qreal share = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? 1 : 0.5;
    const qreal baseline = in.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    const qreal digit = digitWidth(metrics);
    qreal x = in.left() + spare * share;
    for (const QChar character : text) {
        const qreal cell = advance(metrics, digit, character);
        const qreal inset = (cell - metrics.horizontalAdvance(character)) / 2;
        painter.drawText(QPointF(x + inset, baseline), QString(character));
        x += cell;
    }
}

} // namespace velvane::TabularText
