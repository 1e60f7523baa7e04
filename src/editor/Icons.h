#pragma once

#include "model/StepKind.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace velvane {

/// The window's symbols: drawings in one colour, painted for the theme and the screen in use.
namespace Icons {

/// Which of the theme's colours an icon takes while it can be used; disabled icons take the
/// disabled colour.
enum class Tone { text, secondary, destructiveWhenActive, onPrimary };

/// The symbol of that name (e.g. "play.fill") as an icon that follows the theme.
QIcon icon(const QString &symbol, Tone tone = Tone::text);

/// A kind's symbol in its family's colour, as menus show it.
QIcon stepIcon(StepKind kind);

/// The symbol in a colour, `size` logical pixels wide and high, sharp at the given device pixel
/// ratio. A name without a drawing gives an empty picture.
QPixmap pixmap(const QString &symbol, const QColor &color, int size, qreal devicePixelRatio);

/// Draws the symbol centred in a rectangle of the painter's logical pixels.
void draw(QPainter &painter, const QString &symbol, const QColor &color, const QRectF &in,
          int size);

} // namespace Icons

} // namespace velvane
