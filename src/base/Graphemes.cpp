#include "base/Graphemes.h"

#include <QTextBoundaryFinder>

namespace velvane::Graphemes {

namespace {

// Calls visit(end of character) for each character until it returns false.
template <typename Visit>
void eachEnd(const QString &text, Visit visit)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (auto end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        if (!visit(end))
            return;
    }
}

} // namespace

qsizetype count(const QString &text)
{
    qsizetype found = 0;
    eachEnd(text, [&](qsizetype) { return ++found, true; });
    return found;
}

QString prefix(const QString &text, qsizetype n)
{
    qsizetype cut = 0;
    if (n > 0)
        eachEnd(text, [&](qsizetype end) { return cut = end, --n > 0; });
    return text.left(cut);
}

QStringList split(const QString &text)
{
    QStringList characters;
    qsizetype start = 0;
    eachEnd(text, [&](qsizetype end) {
        characters << text.mid(start, end - start);
        start = end;
        return true;
    });
    return characters;
}

} // namespace velvane::Graphemes
