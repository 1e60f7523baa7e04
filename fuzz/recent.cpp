#include "Finding.h"
#include "platform/freedesktop/RecentFiles.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <glib.h>

#include <memory>

namespace {

const auto demo = QStringLiteral("/demos/a.velvane");
const auto type = QStringLiteral("application/vnd.orvikel.velvane");

/// What a list says of each file: its title, type, groups and the programs that used it.
using Files = QMap<QByteArray, QByteArrayList>;
using Bookmarks = std::unique_ptr<GBookmarkFile, decltype(&g_bookmark_file_free)>;

QByteArray taken(gchar *text)
{
    const QByteArray bytes(text);
    g_free(text);
    return bytes;
}

void addAll(QByteArrayList &to, gchar **texts)
{
    for (gchar **text = texts; text && *text; ++text)
        to << *text;
    g_strfreev(texts);
}

/// Null when the bytes are no list.
Bookmarks load(const QByteArray &bytes)
{
    Bookmarks list(g_bookmark_file_new(), g_bookmark_file_free);
    if (!g_bookmark_file_load_from_data(list.get(), bytes.constData(), gsize(bytes.size()),
                                        nullptr))
        list.reset();
    return list;
}

/// The list as the library writes it, which leaves out what its format does not have: files that
/// no program has used, and uses without a count.
QByteArray saved(GBookmarkFile *list)
{
    return taken(g_bookmark_file_to_data(list, nullptr, nullptr));
}

Files read(GBookmarkFile *list)
{
    Files files;
    QByteArrayList uris;
    addAll(uris, g_bookmark_file_get_uris(list, nullptr));
    for (const QByteArray &uri : uris) {
        const char *name = uri.constData();
        QByteArrayList &about = files[uri];
        about << taken(g_bookmark_file_get_title(list, name, nullptr));
        about << taken(g_bookmark_file_get_mime_type(list, name, nullptr));
        addAll(about, g_bookmark_file_get_groups(list, name, nullptr, nullptr));
        addAll(about, g_bookmark_file_get_applications(list, name, nullptr, nullptr));
    }
    return files;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    check(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size(), "no list to read");
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    check(file.open(QFile::ReadOnly), "the list is gone");
    return file.readAll();
}

} // namespace

/// Any bytes as the desktop's list of recent files: they are left alone, or gain one file and keep
/// all others.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const QString list = folder.filePath("recently-used.xbel");
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    write(list, bytes);
    const Bookmarks given = load(bytes);
    const Bookmarks before = given ? load(saved(given.get())) : load({});
    if (!velvane::RecentFiles::add(demo, type, list)) {
        check(!before, "a list to which nothing can be added");
        check(contents(list) == bytes, "what is no list is changed");
        return 0;
    }
    const Bookmarks after = load(contents(list));
    check(given && after, "what is no list is taken for one, or written");
    const Files others = before ? read(before.get()) : Files();
    const Files files = read(after.get());
    const QByteArray ours = "file://" + demo.toUtf8();
    const QByteArrayList about = files.value(ours);
    check(about.contains(type.toUtf8()) && about.contains("Velvane"), "the demo is not there");
    for (auto other = others.begin(); other != others.end(); ++other)
        check(other.key() == ours || files.value(other.key()) == *other, "another file changes");
    return 0;
}
