#include "platform/freedesktop/DesktopEntry.h"

#include <QHash>

namespace velvane {

namespace {

constexpr qsizetype largestFile = 1 << 20;

using Keys = QHash<QByteArray, QByteArray>;

// The keys of the first [Desktop Entry]; nothing when there is no such group.
std::optional<Keys> readGroup(const QByteArray &bytes)
{
    std::optional<Keys> keys;
    for (qsizetype start = 0; start < bytes.size();) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        const QByteArray line = bytes.mid(start, end - start).trimmed();
        start = end + 1;
        if (line.startsWith('[')) {
            if (keys)
                break;
            if (line == "[Desktop Entry]")
                keys.emplace();
        } else if (keys && !line.startsWith('#')) {
            const qsizetype equals = line.indexOf('=');
            if (equals > 0)
                keys->insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
        }
    }
    return keys;
}

QChar unescaped(QChar code)
{
    switch (code.unicode()) {
    case 's':
        return u' ';
    case 'n':
        return u'\n';
    case 't':
        return u'\t';
    case 'r':
        return u'\r';
    default:
        return code;
    }
}

// The parts of a value at its separators, or the value as one part; escapes resolved.
QStringList parts(const QByteArray &value, bool isList)
{
    QStringList found(QString{});
    const QString text = QString::fromUtf8(value);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' && i + 1 < text.size())
            found.last() += unescaped(text[++i]);
        else if (isList && text[i] == u';')
            found << QString();
        else
            found.last() += text[i];
    }
    return found;
}

QString text(const QByteArray &value)
{
    return parts(value, false).first();
}

QStringList list(const QByteArray &value)
{
    QStringList found = parts(value, true);
    found.removeAll(QString());
    return found;
}

bool isTrue(const QByteArray &value)
{
    return value == "true" || value == "1";
}

// What comes before a character; all where it does not come.
QByteArray before(const QByteArray &bytes, char stop)
{
    const qsizetype at = bytes.indexOf(stop);
    return at < 0 ? bytes : bytes.left(at);
}

// "de_DE.UTF-8@euro" -> de_DE@euro, de_DE, de@euro, de.
QList<QByteArray> localeNames(const QString &locale)
{
    const QByteArray whole = locale.toUtf8();
    const QByteArray modifier = whole.mid(before(whole, '@').size());
    const QByteArray country = before(before(whole, '@'), '.');
    QList<QByteArray> names;
    for (const QByteArray &base : {country, before(country, '_')})
        names << base + modifier << base;
    return names;
}

QString localized(const Keys &keys, const QByteArray &key, const QString &locale)
{
    for (const QByteArray &name : localeNames(locale)) {
        QString found = text(keys.value(key + '[' + name + ']'));
        if (!found.isEmpty())
            return found;
    }
    return text(keys.value(key));
}

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(const QByteArray &bytes, const QString &locale)
{
    if (bytes.size() > largestFile)
        return {};
    const std::optional<Keys> keys = readGroup(bytes);
    if (!keys)
        return {};
    DesktopEntry entry;
    entry.hidden = isTrue(keys->value("Hidden"));
    entry.name = text(keys->value("Name"));
    if (!entry.hidden && (keys->value("Type") != "Application" || entry.name.isEmpty()))
        return {};
    entry.localizedName = localized(*keys, "Name", locale);
    entry.icon = text(keys->value("Icon"));
    entry.exec = text(keys->value("Exec"));
    entry.tryExec = text(keys->value("TryExec"));
    entry.folder = text(keys->value("Path"));
    entry.startupWmClass = text(keys->value("StartupWMClass"));
    if (keys->contains("OnlyShowIn"))
        entry.onlyShowIn = list(keys->value("OnlyShowIn"));
    entry.notShowIn = list(keys->value("NotShowIn"));
    entry.noDisplay = isTrue(keys->value("NoDisplay"));
    entry.dBusActivatable = isTrue(keys->value("DBusActivatable"));
    entry.terminal = isTrue(keys->value("Terminal"));
    return entry;
}

bool isShown(const DesktopEntry &entry, const QStringList &desktops)
{
    if (entry.hidden || entry.noDisplay)
        return false;
    for (const QString &desktop : desktops) {
        if (entry.onlyShowIn && entry.onlyShowIn->contains(desktop))
            return true;
        if (entry.notShowIn.contains(desktop))
            return false;
    }
    return !entry.onlyShowIn;
}

} // namespace velvane
