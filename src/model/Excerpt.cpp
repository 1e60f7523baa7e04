#include "model/Excerpt.h"

namespace velvane {

QString excerpt(QStringView text, qsizetype longest)
{
    QString line = text.left(longest).toString().simplified();
    for (QChar &c : line) {
        // What would disturb a terminal, or turn the direction of what follows.
        if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format)
            c = QChar::ReplacementCharacter;
    }
    return text.size() > longest ? line + QChar(0x2026) : line;
}

} // namespace velvane
