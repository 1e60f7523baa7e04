#include "editor/CommandMenu.h"

#include "editor/Icons.h"
#include "editor/SymbolMenu.h"

#include <QAction>

namespace velvane {

namespace {

void show(QAction &action, const CommandItem &item, const std::optional<MenuActions> &actions)
{
    const auto holds = [&actions](const CommandItem::Flag &flag) {
        return actions && flag && flag(*actions);
    };
    const bool other = holds(item.isOther);
    const QString text = other ? item.otherText : item.text;
    const QString symbol = other && !item.otherSymbol.isEmpty() ? item.otherSymbol : item.symbol;
    if (action.text() != text)
        action.setText(text);
    if (action.property("symbol") != symbol) {
        action.setProperty("symbol", symbol);
        action.setIcon(Icons::icon(symbol));
    }
    action.setEnabled(actions && (!item.isEnabled || item.isEnabled(*actions)));
    action.setChecked(holds(item.isChecked));
}

} // namespace

QAction *CommandMenu::add(const CommandItem &item)
{
    auto *action = new QAction(&m_menu);
    action->setCheckable(static_cast<bool>(item.isChecked));
    action->setShortcut(item.shortcut);
    m_menu.addAction(action);
    FocusedActions &focused = m_focused;
    const auto follow = [action, item, &focused] { show(*action, item, focused.menuActions()); };
    QObject::connect(&focused, &FocusedActions::published, action, follow);
    QObject::connect(action, &QAction::triggered, action, [=, &focused] {
        // Choosing an item publishes again, which replaces the record under the call.
        if (const auto actions = focused.menuActions())
            item.run(*actions);
        // Qt has flipped the check; the flag says whether it stays.
        follow();
    });
    follow();
    return action;
}

QMenu *CommandMenu::addSubmenu(const QString &text, const QString &symbol, bool checks)
{
    auto *submenu = new SymbolMenu(text, &m_menu, checks);
    QAction *action = m_menu.addMenu(submenu);
    action->setIcon(Icons::icon(symbol));
    action->setProperty("symbol", symbol);
    FocusedActions &focused = m_focused;
    const auto follow = [action, &focused] {
        action->setEnabled(focused.menuActions().has_value());
    };
    QObject::connect(&focused, &FocusedActions::published, action, follow);
    follow();
    return submenu;
}

void CommandMenu::addDivider()
{
    m_menu.addSeparator();
}

} // namespace velvane
