#include "cli/Console.h"

#include "language/Languages.h"

#include <QFile>

namespace velvane::cli {

std::string printable(const QString &text, qsizetype maxLength)
{
    QString line = text.size() > maxLength ? text.left(maxLength) + QChar(0x2026) : text;
    for (QChar &character : line) {
        const char16_t code = character.unicode();
        if (code < 0x20)
            character = QChar(0x2400 + code);
        else if (code == 0x7F)
            character = QChar(0x2421);
        else if ((code >= 0x80 && code < 0xA0) || code == 0x2028 || code == 0x2029)
            character = QChar::ReplacementCharacter;
    }
    return line.toStdString();
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
