#include "app/FileCommands.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "editor/ContentView.h"
#include "editor/DocumentCommands.h"
#include "editor/MenuText.h"
#include "editor/SymbolMenu.h"

#include <QCoreApplication>

namespace velvane::FileCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FileCommands", text);
}

void fillRecent(QMenu &menu, EditorWindow &window)
{
    menu.clear();
    RecentDemos &recents = window.documents().recents();
    for (const RecentDemo &demo : recents.demos()) {
        QAction *action =
            menu.addAction(MenuText::escaped(tr("%1 — %2").arg(demo.name(), demo.folder())));
        action->setToolTip(demo.path);
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, path = demo.path] { window.openRecent(path); });
    }
    const bool any = !menu.isEmpty();
    menu.addSeparator();
    QAction *clear = menu.addAction(tr("Clear Menu"));
    clear->setEnabled(any);
    QObject::connect(clear, &QAction::triggered, &window, [&recents] { recents.clear(); });
}

void addRecent(QMenu &menu, EditorWindow &window)
{
    auto *recent = new SymbolMenu(tr("Open Recent"), &menu);
    menu.addMenu(recent);
    recent->setToolTipsVisible(true);
    const auto follow = [recent, &window] {
        recent->menuAction()->setEnabled(!window.documents().recents().demos().isEmpty());
    };
    QObject::connect(recent, &QMenu::aboutToShow, &window,
                     [recent, &window] { fillRecent(*recent, window); });
    // Files come and go without a signal.
    QObject::connect(&menu, &QMenu::aboutToShow, &window, follow);
    QObject::connect(&window.documents().recents(), &RecentDemos::changed, recent, follow);
    follow();
}

} // namespace

void addTo(QMenu &menu, EditorWindow &window)
{
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = menu.addAction(text);
        action->setShortcut(shortcut);
        QObject::connect(action, &QAction::triggered, &window, slot);
    };
    add(tr("New"), Qt::CTRL | Qt::Key_N, [&window] { window.newDemo(); });
    add(tr("Open…"), Qt::CTRL | Qt::Key_O, [&window] { window.open(); });
    addRecent(menu, window);
    menu.addSeparator();
    add(tr("Close"), Qt::CTRL | Qt::Key_W, [&window] { window.close(); });
    add(tr("Save"), Qt::CTRL | Qt::Key_S, [&window] { window.save(); });
    add(tr("Save As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, [&window] { window.saveAs(); });
    menu.addSeparator();
    DocumentCommands::addTo(menu, window.content().menuActions());
    menu.addSeparator();
    add(tr("Quit"), Qt::CTRL | Qt::Key_Q, [&window] { window.quit(); });
}

} // namespace velvane::FileCommands
