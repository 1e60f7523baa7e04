#include "cli/Columns.h"

#include "base/Graphemes.h"

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

QString cut(const QString &text, int columns)
{
    constexpr int ellipsis = 1;
    QString start;
    int used = 0;
    for (const QString &character : Graphemes::split(text)) {
        const int own = width(character);
        if (used + own > columns - ellipsis)
            return width(text) <= columns ? text : start + QChar(0x2026);
        used += own;
        start += character;
    }
    return text;
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
