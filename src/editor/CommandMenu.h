#pragma once

#include "editor/FocusedActions.h"

#include <QKeySequence>
#include <QString>

#include <functional>

class QAction;
class QMenu;

namespace velvane {

/// How one item of the commands' menus looks and behaves. What is left empty does not apply.
struct CommandItem {
    using Flag = std::function<bool(const MenuActions &)>;

    QString text;
    QString symbol;
    std::function<void(const MenuActions &)> run;
    /// May it be chosen? Without this it always may while an editor has the focus.
    Flag isEnabled;
    /// Makes the item checkable.
    Flag isChecked;
    QKeySequence shortcut;
    /// While this holds, the item reads and shows the other text and symbol.
    Flag isOther;
    QString otherText;
    QString otherSymbol;
};

/// Fills a menu with items that follow what the focused editor publishes. All are disabled while
/// nothing is published. Main thread only.
class CommandMenu {
public:
    /// Borrows both; `focused` must outlive the menu.
    CommandMenu(QMenu &menu, FocusedActions &focused) : m_menu(menu), m_focused(focused) {}

    QAction *add(const CommandItem &item);
    /// A submenu, which can be opened while an editor has the focus. `checks`: see SymbolMenu.
    QMenu *addSubmenu(const QString &text, const QString &symbol, bool checks = false);
    void addDivider();

private:
    QMenu &m_menu;
    FocusedActions &m_focused;
};

} // namespace velvane
