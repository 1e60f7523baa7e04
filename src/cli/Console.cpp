#include "cli/Console.h"

#include "base/PlainLine.h"
#include "language/Languages.h"

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
    return QFile::decodeName(QByteArray::fromStdString(argument));
}

} // namespace velvane::cli
