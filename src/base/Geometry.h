#pragma once

#include <QPointF>
#include <QRect>
#include <QSizeF>

namespace velvane {

/// Are both coordinates the same numbers? (QPointF's own == forgives small differences.)
bool identical(QPointF a, QPointF b);
bool identical(QSizeF a, QSizeF b);

/// The integer part of a number; the nearest integer for what no qint64 holds, 0 for NaN.
qint64 truncated(double value);

/// The rectangle grown to even edges: where 4:2:0 planes hold whole chroma samples.
QRect evenAligned(const QRect &rect);

} // namespace velvane
