#include "platform/freedesktop/Addresses.h"

#include <QDesktopServices>
#include <QProcess>

namespace velvane {

bool Addresses::open(const QUrl &address)
{
    if (!address.isValid() || address.scheme().isEmpty())
        return false;
    if (QDesktopServices::openUrl(address))
        return true;
    // Without a display of its own the toolkit opens nothing.
    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({address.toString(QUrl::FullyEncoded)});
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached();
}

} // namespace velvane
