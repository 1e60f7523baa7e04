#pragma once

#include <QMap>
#include <QString>

namespace velvane {

/// How keyboard shortcuts are shown.
namespace Shortcut {

/// Glyphs of the four modifiers, in the order control, option, shift, command; other bits show
/// nothing.
QString modifierGlyphs(quint64 modifiers);

/// Labels of the keys that have a name instead of a character, by key code.
const QMap<quint16, QString> &specialKeyLabels();

/// The label of such a key; empty for every other key code.
QString specialKeyLabel(quint16 keyCode);

} // namespace Shortcut

} // namespace velvane
