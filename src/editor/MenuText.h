#pragma once

#include <QString>

class QAction;
class QMenu;

namespace velvane {

/// Small texts in menus that cannot be chosen.
namespace MenuText {

/// The title of the items that follow.
QAction *addHeader(QMenu &menu, const QString &title);

/// An explanation of the item before.
QAction *addNote(QMenu &menu, const QString &text);

} // namespace MenuText

} // namespace velvane
