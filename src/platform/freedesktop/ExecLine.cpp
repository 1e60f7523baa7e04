#include "platform/freedesktop/DesktopEntry.h"

namespace velvane {

namespace {

// The words of a command line, of which quoted ones may hold spaces and escaped characters;
// nothing when a quote stays open.
QStringList words(const QString &exec)
{
    QStringList found;
    QString word;
    bool quoted = false;
    bool begun = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (c == u'"') {
            quoted = !quoted;
            begun = true;
        } else if (quoted && c == u'\\' && i + 1 < exec.size()) {
            word += exec[++i];
        } else if (!quoted && c.isSpace()) {
            if (begun)
                found << word;
            word.clear();
            begun = false;
        } else {
            word += c;
            begun = true;
        }
    }
    if (begun)
        found << word;
    return quoted ? QStringList() : found;
}

QString baseName(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

// What a field code inside a word stands for; nothing for a code that does not exist. Those for
// files and the deprecated ones stand for nothing to show.
std::optional<QString> meaning(QChar code, const DesktopEntry &entry)
{
    if (code == u'%')
        return QString(code);
    if (code == u'c')
        return entry.localizedName;
    if (code == u'k')
        return entry.path;
    if (QStringLiteral("fFuUidDnNvm").contains(code))
        return QString();
    return {};
}

// The arguments that a word of the line becomes; nothing when the line is invalid.
std::optional<QStringList> expanded(const QString &word, const DesktopEntry &entry)
{
    if (word == "%i")
        return entry.icon.isEmpty() ? QStringList() : QStringList{"--icon", entry.icon};
    QString argument;
    for (qsizetype i = 0; i < word.size(); ++i) {
        if (word[i] != u'%') {
            argument += word[i];
            continue;
        }
        const auto text = i + 1 < word.size() ? meaning(word[++i], entry) : std::nullopt;
        if (!text)
            return {};
        argument += *text;
    }
    // A lone code for no file is no argument; an empty word the author wrote is one.
    return argument.isEmpty() && !word.isEmpty() ? QStringList() : QStringList(argument);
}

} // namespace

QStringList commandOf(const DesktopEntry &entry)
{
    QStringList command;
    for (const QString &word : words(entry.exec)) {
        const std::optional<QStringList> arguments = expanded(word, entry);
        if (!arguments)
            return {};
        command << *arguments;
    }
    return command;
}

QString programOf(const QString &exec)
{
    QStringList line = words(exec);
    if (!line.isEmpty() && baseName(line.first()) == "env") {
        line.removeFirst();
        while (!line.isEmpty() && (line.first().contains(u'=') || line.first().startsWith(u'-')))
            line.removeFirst();
    }
    return line.isEmpty() ? QString() : baseName(line.first());
}

} // namespace velvane
