#pragma once

#include <QStringList>
#include <QVersionNumber>

#include <compare>
#include <optional>

namespace velvane {

/// A version of the program, e.g. "1.4" or "2.0.0-beta.2", ordered as Semantic Versioning has it:
/// what precedes a release ("-beta.2") is older than the release, numbers compare as numbers, and
/// what follows "+" does not count. Missing numbers are zeros: 1.4 is 1.4.0.
class ProgramVersion {
public:
    /// Nothing for a text of another form or longer than 64 characters.
    static std::optional<ProgramVersion> fromString(const QString &text);

    /// As it was written.
    const QString &text() const { return m_text; }

    std::weak_ordering operator<=>(const ProgramVersion &other) const;
    bool operator==(const ProgramVersion &other) const { return (*this <=> other) == 0; }

private:
    QString m_text;
    QVersionNumber m_release;
    QStringList m_preRelease; ///< between the dots; empty for a release
};

} // namespace velvane
