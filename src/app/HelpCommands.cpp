#include "app/HelpCommands.h"

#include "app/HelpPage.h"
#include "app/Question.h"

#include <QCoreApplication>
#include <QMenu>

namespace velvane::HelpCommands {

namespace {

// Short enough to be waited for, since the installed page is as good.
constexpr Seconds patience = 3s;

QString tr(const char *text)
{
    return QCoreApplication::translate("HelpCommands", text);
}

} // namespace

void addTo(QMenu &menu, DesktopShell &shell, QWidget &window)
{
    const HelpPlaces places = HelpPlaces::usual();
    auto *page = new HelpPage(shell, places, patience, &window);
    QObject::connect(page, &HelpPage::failed, &window, [&window, places] {
        ask(&window, Question::message(tr("The documentation could not be opened."),
                                       tr("It is found at %1.").arg(places.online.toString())));
    });
    QAction *help = menu.addAction(tr("Velvane Help"));
    help->setShortcut(Qt::CTRL | Qt::Key_Question);
    QObject::connect(help, &QAction::triggered, page, &HelpPage::open);
}

} // namespace velvane::HelpCommands
