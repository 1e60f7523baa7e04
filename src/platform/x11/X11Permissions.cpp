#include "platform/x11/X11Permissions.h"

#include "base/WholeFile.h"
#include "platform/freedesktop/Addresses.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("X11Permissions", text);
}

// What cannot be done, as the subject of a sentence.
QString activity(Permission permission)
{
    switch (permission) {
    case Permission::accessibility:
        return tr("Driving the mouse and keyboard");
    case Permission::inputMonitoring:
        return tr("Listening to the mouse and keyboard");
    case Permission::screenRecording:
        return tr("Taking pictures of the screen");
    }
    return {};
}

// A page for the browser, since X11 has no settings to show.
QByteArray page(const QString &title, const QString &explanation)
{
    return QStringLiteral(
               "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
               "<body style=\"font: 16px sans-serif; max-width: 40em; margin: 3em auto\">"
               "\n<h1>%1</h1>\n<p>%2</p>\n")
        .arg(title.toHtmlEscaped(), explanation.toHtmlEscaped())
        .toUtf8();
}

} // namespace

X11Permissions::X11Permissions(const X11Connection &connection, bool inWaylandSession)
    : m_connection(connection)
    , m_inWaylandSession(inWaylandSession)
{}

QList<QByteArray> X11Permissions::extensions(Permission permission)
{
    switch (permission) {
    case Permission::accessibility:
        // Posting alone is not enough: without listening nothing could stop a run.
        return {"XTEST", "RECORD"};
    case Permission::inputMonitoring:
        return {"RECORD"};
    case Permission::screenRecording:
        return {"Composite", "DAMAGE", "RENDER", "SHAPE", "XFIXES"};
    }
    return {};
}

QList<QByteArray> X11Permissions::lacking(Permission permission) const
{
    QList<QByteArray> lacking = extensions(permission);
    lacking.removeIf([&](const QByteArray &name) { return m_connection.hasExtension(name); });
    return lacking;
}

QString X11Permissions::explain(Permission permission, bool hasServer, bool inWaylandSession,
                                const QList<QByteArray> &lacking)
{
    if (!hasServer)
        return tr("%1 takes a connection to the X server, and there is none.")
            .arg(activity(permission));
    if (inWaylandSession)
        return tr("%1 reaches only X11 windows in a Wayland session. "
                  "Log in with an X11 session instead.")
            .arg(activity(permission));
    if (lacking.isEmpty())
        return {};
    return tr("%1 takes what this X server lacks: %2. "
              "Enable it in the server, and use a local or trusted connection.")
        .arg(activity(permission), QString::fromLatin1(lacking.join(", ")));
}

// A server may have all that it takes and still keep the screen from an untrusted client.
bool X11Permissions::isRefused(Permission permission) const
{
    if (permission != Permission::screenRecording)
        return false;
    xcb_connection_t *c = m_connection.get();
    const XReply<xcb_get_image_reply_t> pixel(xcb_get_image_reply(
        c, xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection.root(), 0, 0, 1, 1, ~0U),
        nullptr));
    return !pixel;
}

bool X11Permissions::granted(Permission permission)
{
    return explanation(permission).isEmpty();
}

QString X11Permissions::explanation(Permission permission)
{
    const QString text =
        explain(permission, m_connection.isOpen(), m_inWaylandSession, lacking(permission));
    if (text.isEmpty() && isRefused(permission))
        return tr("%1 is refused by this X server. Use a local or trusted connection.")
            .arg(activity(permission));
    return text;
}

void X11Permissions::openSettings(Permission permission)
{
    const QString text = explanation(permission);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QDir().mkpath(folder);
    const QString file = folder + "/permission.html";
    const QByteArray html =
        page(activity(permission), text.isEmpty() ? tr("Nothing is missing.") : text);
    if (!WholeFile::write(file, html))
        Addresses::open(QUrl::fromLocalFile(file));
}

} // namespace velvane
