#include "app/UpdaterCommands.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/Question.h"
#include "app/UpdaterController.h"
#include "app/WebPage.h"
#include "editor/ContentView.h"

#include <QCoreApplication>
#include <QMenu>

namespace velvane::UpdaterCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("UpdaterCommands", text);
}

void open(DesktopShell &shell, const QUrl &page, QWidget *window)
{
    if (!openPage(shell, page))
        ask(window, Question::message(tr("The download page could not be opened."),
                                      tr("It is found at %1.").arg(page.toString())));
}

void tell(const UpdateAnswer &answer, EditorWindow *window)
{
    if (answer.page.isEmpty())
        return ask(window, Question::message(answer.sentence, answer.detail));
    const Question question{
        answer.sentence, answer.detail, {tr("Open Download Page"), tr("Not Now")}};
    ask(window, question, [window, page = answer.page](int chosen) {
        if (chosen == 0)
            open(window->documents().desktop().shell(), page, window);
    });
}

void check(UpdaterController &updater, EditorWindow *window)
{
    StatusLine &status = window->content().statusLine();
    status.setMessage(tr("Checking for updates…"));
    // The other windows did not ask.
    QObject::connect(
        &updater, &UpdaterController::checked, window,
        [&status, window](const UpdateAnswer &answer) {
            if (status.message() == tr("Checking for updates…"))
                status.setMessage({});
            tell(answer, window);
        },
        Qt::SingleShotConnection);
    updater.checkForUpdates();
}

void addAutomatic(QMenu &menu, UpdaterController &updater)
{
    QAction *automatic = menu.addAction(tr("Check for Updates Automatically"));
    automatic->setCheckable(true);
    automatic->setVisible(false);
    // Not before: it takes a while until it is known whether there is a choice. And another window
    // may have made it.
    QObject::connect(&menu, &QMenu::aboutToShow, automatic, [&updater, automatic] {
        automatic->setVisible(updater.isAvailable());
        automatic->setChecked(updater.isAutomatic());
    });
    QObject::connect(automatic, &QAction::triggered, &updater, &UpdaterController::setAutomatic);
}

} // namespace

void addTo(QMenu &menu, EditorWindow &window, UpdaterController &updater)
{
    QAction *action = menu.addAction(tr("Check for Updates…"));
    QObject::connect(action, &QAction::triggered, &window,
                     [&updater, &window] { check(updater, &window); });
    addAutomatic(menu, updater);
    QObject::connect(&updater, &UpdaterController::updateFound, &window,
                     [&window](const QString &name) {
                         window.content().statusLine().setMessage(
                             tr("Velvane %1 is available: see “Check for Updates…” in the menu "
                                "“Help”.")
                                 .arg(name));
                     });
}

} // namespace velvane::UpdaterCommands
