#include "cli/Columns.h"

#include <algorithm>
#include <cwchar>

namespace velvane::cli::Columns {

int width(const QString &text)
{
    int columns = 0;
    // What the system's character set does not know has a negative width.
    for (const wchar_t character : text.toStdWString()) {
        const int own = wcwidth(character);
        columns += own < 0 ? 1 : own;
    }
    return columns;
}

QString left(const QString &text, int columns)
{
    return text + QString(std::max(columns - width(text), 0), u' ');
}

QString right(const QString &text, int columns)
{
    return QString(std::max(columns - width(text), 0), u' ') + text;
}

} // namespace velvane::cli::Columns
