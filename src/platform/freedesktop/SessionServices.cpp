#include "platform/freedesktop/SessionServices.h"

#include "platform/Sandbox.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QStandardPaths>

namespace velvane::SessionServices {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("SessionServices", text);
}

DesktopFact bus()
{
    const QString what = tr("Session bus");
    if (QDBusConnection::sessionBus().isConnected())
        return {what, tr("answers"), {}};
    return {what, tr("none"),
            tr("Start Velvane from the desktop, or below dbus-run-session: windows cannot be "
               "shared with a running Velvane without it.")};
}

DesktopFact portal()
{
    const QString what = tr("Desktop portal");
    if (canBeHad("org.freedesktop.portal.Desktop"))
        return {what, tr("there"), {}};
    return {what, tr("none"),
            tr("Install xdg-desktop-portal and the one of your desktop, so that dark and light "
               "follow the system.")};
}

// How a recording is shown in its folder.
DesktopFact fileManager()
{
    const QString what = tr("File manager");
    if (canBeHad("org.freedesktop.FileManager1"))
        return {what, tr("shows a file in its folder"), {}};
    if (!QStandardPaths::findExecutable("xdg-open").isEmpty())
        return {what, tr("opens a file's folder"), {}};
    return {what, tr("none can be asked"),
            tr("Install a file manager, and xdg-utils, so that recordings can be shown.")};
}

// Whether a demo's switch can start an application, which takes a permission in a sandbox.
DesktopFact starting()
{
    const QString what = tr("Applications");
    if (canBeHad("org.freedesktop.Flatpak"))
        return {what, tr("can be started"), {}};
    return {what, tr("only running ones can be switched to"),
            tr("Start them before a live run, or allow it: %1")
                .arg("flatpak override --user --talk-name=org.freedesktop.Flatpak "
                     "com.orvikel.velvane")};
}

} // namespace

bool canBeHad(const QString &service)
{
    const QDBusConnection session = QDBusConnection::sessionBus();
    if (!session.isConnected())
        return false;
    const QDBusReply<bool> running = session.interface()->isServiceRegistered(service);
    const QDBusReply<QStringList> startable = session.interface()->activatableServiceNames();
    return running.value() || startable.value().contains(service);
}

std::vector<DesktopFact> facts()
{
    std::vector<DesktopFact> facts{bus(), portal(), fileManager()};
    if (Sandbox::isAround())
        facts.push_back(starting());
    return facts;
}

} // namespace velvane::SessionServices
