#pragma once

#include <QFontMetricsF>
#include <QString>

class QPainter;
class QRectF;

namespace velvane {

/// Numbers whose digits stand in columns, whatever the font's own digits do.
namespace TabularText {

/// The width that draw() needs; every digit takes that of the widest.
qreal width(const QFontMetricsF &metrics, const QString &text);

/// Draws one line with the painter's font and pen, vertically centred; the alignment is
/// Qt::AlignLeft, Qt::AlignRight or Qt::AlignHCenter.
void draw(QPainter &painter, const QRectF &in, Qt::AlignmentFlag alignment, const QString &text);

} // namespace TabularText

} // namespace velvane
