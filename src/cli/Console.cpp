#include "cli/Console.h"

#include "base/PlainLine.h"
#include "language/Languages.h"
#include "platform/Sandbox.h"

#include <QFile>

namespace velvane::cli {

std::string printable(const QString &text)
{
    // The system's longest path is 4,096 bytes.
    constexpr qsizetype longest = 5000;
    return plainLine(text, longest).toStdString();
}

QString tr(const char *english)
{
    return Languages::text(english);
}

std::string help(const char *english)
{
    return tr(english).toStdString();
}

QString fileName(const std::string &argument)
{
    QString name = QFile::decodeName(QByteArray::fromStdString(argument));
    if (Sandbox::isOutOfReach(name))
        throw CommandError(name + ": "
                           + tr("This Flatpak cannot reach it. Give it the folder: %1")
                                 .arg(Sandbox::commandThatReaches()));
    return name;
}

} // namespace velvane::cli
