#include "app/WebPage.h"

#include <QDesktopServices>

namespace velvane {

bool openPage(DesktopShell &shell, const QUrl &page)
{
    return shell.missing().isEmpty() ? shell.open(page) : QDesktopServices::openUrl(page);
}

} // namespace velvane
