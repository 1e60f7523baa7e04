#pragma once

#include "language/Catalogue.h"

#include <QRegularExpression>

namespace velvane {

/// A language that no one speaks: the English texts with accents, two fifths longer than they are.
/// It has the texts that the catalogues have, so that what stays English is in none of them.
class PseudoCatalogue : public QTranslator {
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *english, const char *comment,
                      int n) const override
    {
        if (m_german.translate(context, english, comment, n).isEmpty())
            return {};
        return longer(accented(QString::fromUtf8(english)));
    }

    /// Has a text been through here, or does it hold no words at all?
    static bool isOurs(const QString &text)
    {
        static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
        static const QRegularExpression mark(QStringLiteral("[áéíóúÁÉÍÓÚ]"));
        return !word.match(text).hasMatch() || mark.match(text).hasMatch();
    }

private:
    static QString accented(QString text)
    {
        const QString plain = QStringLiteral("aeiouAEIOU");
        const QString accents = QStringLiteral("áéíóúÁÉÍÓÚ");
        for (qsizetype i = 0; i < text.size(); ++i)
            if (const qsizetype at = plain.indexOf(text[i]); at >= 0)
                text[i] = accents[at];
        // Texts without a vowel are marked too.
        return isOurs(text) ? text : text + u'é';
    }
    // Words grow at their ends, where no placeholder and no sign stands.
    static QString longer(const QString &text)
    {
        static const QRegularExpression word(QStringLiteral("[A-Za-záéíóúÁÉÍÓÚ]{3,}"));
        QString result;
        qsizetype done = 0;
        for (const QRegularExpressionMatch &match : word.globalMatch(text)) {
            result += text.sliced(done, match.capturedEnd() - done);
            result += QString(match.capturedLength() * 2 / 5, u'é');
            done = match.capturedEnd();
        }
        return result + text.sliced(done);
    }

    Catalogue m_german{QStringLiteral(":/translations/velvane_de")};
};

} // namespace velvane
