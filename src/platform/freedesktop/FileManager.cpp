#include "platform/freedesktop/FileManager.h"

#include "platform/freedesktop/Addresses.h"
#include "platform/freedesktop/SessionServices.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QUrl>

namespace velvane {

namespace {

const char service[] = "org.freedesktop.FileManager1";

using Answer = std::function<void(const QDBusPendingCall &)>;

// Calls `answered` on the main thread once the answer is there, if its owner still is.
void whenAnswered(const QDBusPendingCall &call, QObject &owner, const Answer &answered)
{
    auto *watcher = new QDBusPendingCallWatcher(call, &owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [=] {
        watcher->deleteLater();
        answered(*watcher);
    });
}

void tellProcess(QObject &owner, const std::function<void(qint64)> &shown)
{
    QDBusMessage ask = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetConnectionUnixProcessID");
    ask << QString(service);
    const QDBusPendingCall asked = QDBusConnection::sessionBus().asyncCall(ask);
    whenAnswered(asked, owner, [=](const QDBusPendingCall &call) {
        const QDBusPendingReply<uint> pid = call;
        if (pid.isValid())
            shown(pid.value());
    });
}

} // namespace

bool FileManager::reveal(const QString &file, QObject &owner,
                         const std::function<void(qint64)> &shown)
{
    const QFileInfo info(file);
    if (!info.exists())
        return false;
    const QUrl folder = QUrl::fromLocalFile(info.absolutePath());
    if (!SessionServices::canBeHad(service))
        return Addresses::open(folder);
    QDBusMessage show = QDBusMessage::createMethodCall(service, "/org/freedesktop/FileManager1",
                                                       service, "ShowItems");
    const QUrl address = QUrl::fromLocalFile(info.absoluteFilePath());
    show << QStringList(address.toString(QUrl::FullyEncoded)) << QString();
    const QDBusPendingCall asked = QDBusConnection::sessionBus().asyncCall(show);
    whenAnswered(asked, owner, [=, &owner](const QDBusPendingCall &call) {
        if (call.isError())
            Addresses::open(folder);
        else
            tellProcess(owner, shown);
    });
    return true;
}

} // namespace velvane
