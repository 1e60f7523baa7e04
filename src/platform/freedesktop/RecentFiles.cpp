#include "platform/freedesktop/RecentFiles.h"

#include "base/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QStandardPaths>
#include <QUrl>

#include <glib.h>

#include <memory>

namespace velvane::RecentFiles {

namespace {

constexpr auto application = "Velvane";
constexpr auto command = "velvane %u";
// Milliseconds that others may take to write the list.
constexpr int patience = 2000;
// Bytes; other programs keep it far shorter.
constexpr qint64 greatestSize = 64 << 20;

using Bookmarks = std::unique_ptr<GBookmarkFile, decltype(&g_bookmark_file_free)>;

Bookmarks none()
{
    return {nullptr, g_bookmark_file_free};
}

/// Null when the bytes are no list.
Bookmarks parse(const QByteArray &bytes)
{
    Bookmarks bookmarks(g_bookmark_file_new(), g_bookmark_file_free);
    const bool isList = g_bookmark_file_load_from_data(bookmarks.get(), bytes.constData(),
                                                       gsize(bytes.size()), nullptr);
    return isList ? std::move(bookmarks) : none();
}

/// An empty list when there is none yet, null when there is something else.
Bookmarks read(const QString &list)
{
    QFile file(list);
    if (!file.exists())
        return {g_bookmark_file_new(), g_bookmark_file_free};
    if (!file.open(QIODevice::ReadOnly) || file.size() > greatestSize)
        return none();
    return parse(file.readAll());
}

QByteArray contents(GBookmarkFile *bookmarks)
{
    gsize size = 0;
    gchar *data = g_bookmark_file_to_data(bookmarks, &size, nullptr);
    const QByteArray bytes(data, qsizetype(size));
    g_free(data);
    return bytes;
}

bool write(const QString &list, GBookmarkFile *bookmarks)
{
    const QByteArray bytes = contents(bookmarks);
    // The library does not escape everything that it writes, such as an '&' in another's type.
    return parse(bytes) && !WholeFile::write(list, bytes);
}

void removeOurs(GBookmarkFile *bookmarks, const char *uri)
{
    if (!g_bookmark_file_has_application(bookmarks, uri, application, nullptr))
        return;
    gsize users = 0;
    g_strfreev(g_bookmark_file_get_applications(bookmarks, uri, &users, nullptr));
    if (users > 1)
        g_bookmark_file_remove_application(bookmarks, uri, application, nullptr);
    else
        g_bookmark_file_remove_item(bookmarks, uri, nullptr);
}

} // namespace

QString standardList()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
           + QStringLiteral("/recently-used.xbel");
}

bool add(const QString &file, const QString &type, const QString &list)
{
    QDir().mkpath(QFileInfo(list).absolutePath());
    QLockFile lock(list + QStringLiteral(".lock"));
    if (!lock.tryLock(patience))
        return false;
    const bool isNew = !QFile::exists(list);
    const Bookmarks bookmarks = read(list);
    if (!bookmarks)
        return false;
    const QByteArray uri = QUrl::fromLocalFile(file).toEncoded();
    g_bookmark_file_set_mime_type(bookmarks.get(), uri.constData(), type.toUtf8().constData());
    g_bookmark_file_add_application(bookmarks.get(), uri.constData(), application, command);
    GDateTime *now = g_date_time_new_now_utc();
    g_bookmark_file_set_visited_date_time(bookmarks.get(), uri.constData(), now);
    g_date_time_unref(now);
    if (!write(list, bookmarks.get()))
        return false;
    // Which files somebody uses is nobody else's business.
    if (isNew)
        QFile::setPermissions(list, QFile::ReadOwner | QFile::WriteOwner);
    return true;
}

bool removeOurs(const QString &list)
{
    if (!QFile::exists(list))
        return true;
    QLockFile lock(list + QStringLiteral(".lock"));
    if (!lock.tryLock(patience))
        return false;
    const Bookmarks bookmarks = read(list);
    if (!bookmarks)
        return false;
    const std::unique_ptr<gchar *, decltype(&g_strfreev)> uris(
        g_bookmark_file_get_uris(bookmarks.get(), nullptr), g_strfreev);
    for (gchar **uri = uris.get(); *uri; ++uri)
        removeOurs(bookmarks.get(), *uri);
    return write(list, bookmarks.get());
}

} // namespace velvane::RecentFiles
