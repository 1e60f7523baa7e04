#pragma once

#include <QString>

class QAction;
class QMenu;

namespace velvane {

/// Texts in menus, and small ones that cannot be chosen.
namespace MenuText {

/// A name as it stands in a menu or on a button: its "&" underlines nothing.
QString escaped(QString name);

/// The title of the items that follow.
QAction *addHeader(QMenu &menu, const QString &title);

/// An explanation of the item before.
QAction *addNote(QMenu &menu, const QString &text);

} // namespace MenuText

} // namespace velvane
