#include "app/WindowCommands.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "editor/MenuText.h"

#include <QCoreApplication>
#include <QMenu>

namespace velvane::WindowCommands {

namespace {

void addWindows(QMenu &menu, EditorWindow &current)
{
    for (EditorWindow *window : current.documents().windows()) {
        QAction *action = menu.addAction(MenuText::escaped(window->name()));
        action->setCheckable(true);
        action->setChecked(window == &current);
        QObject::connect(action, &QAction::triggered, window,
                         [window] { Documents::bringUp(window); });
    }
}

} // namespace

void addTo(QMenu &menu, EditorWindow &window)
{
    QAction *minimize = menu.addAction(QCoreApplication::translate("WindowCommands", "Minimize"));
    minimize->setShortcut(Qt::CTRL | Qt::Key_M);
    QObject::connect(minimize, &QAction::triggered, &window, &QWidget::showMinimized);
    menu.addSeparator();
    QObject::connect(&menu, &QMenu::aboutToShow, &window, [&] { fill(menu, window); });
    fill(menu, window);
}

void fill(QMenu &menu, EditorWindow &window)
{
    constexpr qsizetype fixed = 2;
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions.mid(fixed))
        delete action;
    addWindows(menu, window);
}

} // namespace velvane::WindowCommands
