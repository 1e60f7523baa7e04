#include "app/HelpCommands.h"

#include "app/Question.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QMenu>

namespace velvane::HelpCommands {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HelpCommands", text);
}

void open(DesktopShell &shell, QWidget *window)
{
    const QUrl page = documentation();
    // The session's shell knows best; without one Qt asks the desktop itself.
    const bool opened =
        shell.missing().isEmpty() ? shell.open(page) : QDesktopServices::openUrl(page);
    if (!opened)
        ask(window, Question::message(tr("The documentation could not be opened."),
                                      tr("It is found at %1.").arg(page.toString())));
}

} // namespace

QUrl documentation()
{
    return QUrl(QStringLiteral(VELVANE_SITE "/apps/velvane/docs.html"));
}

void addTo(QMenu &menu, DesktopShell &shell, QWidget &window)
{
    QAction *help = menu.addAction(tr("Velvane Help"));
    help->setShortcut(Qt::CTRL | Qt::Key_Question);
    QObject::connect(help, &QAction::triggered, &window, [&] { open(shell, &window); });
}

} // namespace velvane::HelpCommands
