#include "Finding.h"
#include "platform/freedesktop/DesktopEntry.h"

namespace {

using velvane::DesktopEntry;

/// A value that reads as this text, also as a part of a list.
QByteArray written(const QString &text)
{
    const QString escaped = QStringLiteral(" \n\t\r\\;");
    const QStringList escapes{"\\s", "\\n", "\\t", "\\r", "\\\\", "\\;"};
    QString value;
    for (const QChar c : text) {
        const auto at = escaped.indexOf(c);
        value += at < 0 ? QString(c) : escapes[at];
    }
    // What would be lost at the start: the mark of a file's byte order, and white space.
    if (value.startsWith(QChar::ByteOrderMark) || value.startsWith(u'\v')
        || value.startsWith(u'\f'))
        value.prepend(u'\\');
    return value.toUtf8();
}

QByteArray written(const QStringList &list)
{
    QByteArray value;
    for (const QString &part : list)
        value += written(part) + ';';
    return value;
}

QByteArray written(bool truth)
{
    return truth ? "true" : "false";
}

QByteArray written(const DesktopEntry &entry)
{
    QByteArray file = "[Desktop Entry]\nType=Application\n";
    const auto add = [&file](const char *key, const auto &value) {
        file += key + ("=" + written(value)) + '\n';
    };
    add("Name", entry.name);
    add("Name[de]", entry.localizedName);
    add("Icon", entry.icon);
    add("Exec", entry.exec);
    add("TryExec", entry.tryExec);
    add("Path", entry.folder);
    add("StartupWMClass", entry.startupWmClass);
    if (entry.onlyShowIn)
        add("OnlyShowIn", *entry.onlyShowIn);
    add("NotShowIn", entry.notShowIn);
    add("NoDisplay", entry.noDisplay);
    add("Hidden", entry.hidden);
    add("DBusActivatable", entry.dBusActivatable);
    add("Terminal", entry.terminal);
    return file;
}

void checkSame(const DesktopEntry &a, const DesktopEntry &b)
{
    check(a.name == b.name && a.localizedName == b.localizedName, "a name changes");
    check(a.icon == b.icon && a.folder == b.folder, "a place changes");
    check(a.exec == b.exec && a.tryExec == b.tryExec, "a program changes");
    check(a.startupWmClass == b.startupWmClass, "a window's class changes");
    check(a.onlyShowIn == b.onlyShowIn && a.notShowIn == b.notShowIn, "a list changes");
    check(a.noDisplay == b.noDisplay && a.hidden == b.hidden, "who sees it changes");
    check(a.dBusActivatable == b.dBusActivatable && a.terminal == b.terminal,
          "how it starts changes");
}

/// The arguments are started as they stand: quoted and with every '%' doubled they are the same.
void checkCommand(const DesktopEntry &entry)
{
    const QStringList command = velvane::commandOf(entry);
    QString exec;
    for (QString argument : command) {
        argument.replace(u'\\', "\\\\").replace(u'"', "\\\"").replace(u'%', "%%");
        exec += '"' + argument + "\" ";
    }
    DesktopEntry again;
    again.exec = exec;
    check(velvane::commandOf(again) == command, "an argument changes when it is quoted");
    check(!velvane::programOf(entry.exec).contains(u'/'), "a program's name with a folder");
}

} // namespace

/// Any bytes as a .desktop file: they describe no application, or one that can be named, and that
/// is the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto entry = velvane::parseDesktopEntry(bytes, "de_DE.UTF-8@euro");
    if (!entry)
        return 0;
    check(entry->hidden || !entry->name.isEmpty(), "an application without a name");
    check(entry->name.isEmpty() || !entry->localizedName.isEmpty(), "a name lost in a language");
    const bool seen = velvane::isShown(*entry, {"ubuntu", "GNOME"});
    check(!seen || !(entry->hidden || entry->noDisplay), "a hidden application is shown");
    checkCommand(*entry);
    const auto again = velvane::parseDesktopEntry(written(*entry), "de_DE.UTF-8@euro");
    check(again.has_value(), "an application that is lost when it is written");
    checkSame(*entry, *again);
    return 0;
}
