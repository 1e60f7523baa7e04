#include "base/PlainLine.h"

#include "base/Graphemes.h"

#include <QList>

namespace velvane {

namespace {

// UTF-16 units; more than any character of a script or emoji has, but accents can be piled up
// without end.
constexpr qsizetype longestCharacter = 32;

char32_t harmless(char32_t code, bool continues)
{
    constexpr char32_t pictures = 0x2400;
    constexpr char32_t pictureOfDelete = 0x2421;
    switch (QChar::category(code)) {
    case QChar::Other_Control:
        if (code < 0x20)
            return pictures + code;
        return code == 0x7F ? pictureOfDelete : char32_t(QChar::ReplacementCharacter);
    case QChar::Other_Format:
        return continues ? code : char32_t(QChar::ReplacementCharacter);
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return QChar::ReplacementCharacter;
    default:
        return code;
    }
}

} // namespace

QString plainLine(QStringView text, qsizetype longest)
{
    // Looking for the boundaries takes time and memory for all the text that is looked at.
    const bool isShort = text.size() / longestCharacter < longest;
    const QStringView start = isShort ? text : text.first(longest * longestCharacter);
    QString line;
    qsizetype count = 0;
    for (const QString &character : Graphemes::split(start.toString())) {
        if (++count > longest)
            break;
        bool continues = false;
        // Halves of surrogate pairs are replaced here.
        for (const uint code : character.toUcs4()) {
            line += QChar::fromUcs4(harmless(code, continues));
            continues = true;
        }
    }
    return count > longest || !isShort ? line + QChar(0x2026) : line;
}

QString withVisibleBreaks(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const char16_t lineBreak : {u'\n', u'\v', u'\f', u'\r', u'\x85', u'\u2028', u'\u2029'})
        text.replace(QChar(lineBreak), QChar(0x23CE));
    return text;
}

} // namespace velvane
