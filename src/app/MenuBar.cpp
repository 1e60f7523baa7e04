#include "app/MenuBar.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/FileCommands.h"
#include "app/HelpCommands.h"
#include "app/Question.h"
#include "app/UpdaterCommands.h"
#include "app/UpdaterController.h"
#include "app/WindowCommands.h"
#include "editor/ContentView.h"
#include "editor/DemoCommands.h"
#include "editor/EditCommands.h"
#include "editor/StepCommands.h"
#include "editor/SymbolMenu.h"
#include "editor/ViewCommands.h"

#include <QCoreApplication>
#include <QMenuBar>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("MenuBar", text);
}

void addAbout(QMenu &menu, EditorWindow &window)
{
    QAction *about = menu.addAction(tr("About Velvane"));
    about->setMenuRole(QAction::AboutRole);
    QObject::connect(about, &QAction::triggered, &window, [&window] {
        ask(&window, Question::message(tr("Velvane %1").arg(QLatin1String(VELVANE_VERSION)),
                                       tr("Scripted screen demonstrations.")));
    });
}

} // namespace

void buildMenuBar(EditorWindow &window)
{
    const auto add = [&window](const QString &title, bool checks = false) -> QMenu & {
        auto *menu = new SymbolMenu(title, &window, checks);
        window.menuBar()->addMenu(menu);
        return *menu;
    };
    ContentView &editor = window.content();
    FocusedActions &focused = editor.menuActions();
    FileCommands::addTo(add(tr("&File")), window);
    EditCommands::addTo(add(tr("&Edit")), editor);
    ViewCommands::addTo(add(tr("&View"), true), focused);
    DemoCommands::addTo(add(tr("&Demo")), focused);
    StepCommands::addTo(add(tr("&Step")), focused);
    WindowCommands::addTo(add(tr("&Window")), window);
    QMenu &help = add(tr("&Help"));
    HelpCommands::addTo(help, window.documents().desktop().shell(), window);
    help.addSeparator();
    addAbout(help, window);
    UpdaterCommands::addTo(help, window, UpdaterController::shared());
}

} // namespace velvane
