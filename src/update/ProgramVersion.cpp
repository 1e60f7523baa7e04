#include "update/ProgramVersion.h"

#include <QRegularExpression>

namespace velvane {

namespace {

constexpr qsizetype longest = 64;

std::weak_ordering ordering(int comparison)
{
    return comparison <=> 0;
}

bool isNumber(const QString &identifier)
{
    return std::all_of(identifier.begin(), identifier.end(),
                       [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// Numbers may be longer than any integer.
std::weak_ordering compareNumbers(const QString &a, const QString &b)
{
    static const QRegularExpression zeros(QStringLiteral("^0+"));
    const QString left = QString(a).remove(zeros);
    const QString right = QString(b).remove(zeros);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return ordering(left.compare(right));
}

// A number comes before a word.
std::weak_ordering compareIdentifiers(const QString &a, const QString &b)
{
    if (isNumber(a) && isNumber(b))
        return compareNumbers(a, b);
    if (isNumber(a) != isNumber(b))
        return isNumber(b) <=> isNumber(a);
    return ordering(a.compare(b));
}

std::weak_ordering comparePreReleases(const QStringList &a, const QStringList &b)
{
    // The release itself comes last.
    if (a.isEmpty() || b.isEmpty())
        return a.isEmpty() <=> b.isEmpty();
    for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i)
        if (const auto order = compareIdentifiers(a[i], b[i]); order != 0)
            return order;
    return a.size() <=> b.size();
}

} // namespace

std::optional<ProgramVersion> ProgramVersion::fromString(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        R"(^(\d{1,9}(?:\.\d{1,9}){0,3})(?:-([0-9A-Za-z-]+(?:\.[0-9A-Za-z-]+)*))?(?:\+[0-9A-Za-z.-]+)?$)"));
    if (text.size() > longest)
        return {};
    const QRegularExpressionMatch match = form.match(text);
    // In expressions, $ allows a line break behind it.
    if (!match.hasMatch() || match.capturedLength() != text.size())
        return {};
    ProgramVersion version;
    version.m_text = text;
    version.m_release = QVersionNumber::fromString(match.captured(1)).normalized();
    version.m_preRelease = match.captured(2).split(u'.', Qt::SkipEmptyParts);
    return version;
}

std::weak_ordering ProgramVersion::operator<=>(const ProgramVersion &other) const
{
    const int releases = QVersionNumber::compare(m_release, other.m_release);
    return releases != 0 ? ordering(releases)
                         : comparePreReleases(m_preRelease, other.m_preRelease);
}

} // namespace velvane
