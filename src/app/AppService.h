#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace velvane {

/// The running program as other programs reach it on the session bus: org.freedesktop.Application
/// under the name "com.orvikel.velvane". Main thread only.
///
/// The first process that claims the name is the one in which all demos open; later ones hand it
/// theirs and end. Calls made here arrive as signals.
class AppService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    static const QString name;
    /// The action that makes a new demo.
    static const QString newDemo;

    /// `platformData` goes along when demos are handed over.
    AppService(const QDBusConnection &bus, const QVariantMap &platformData = {});
    ~AppService() override;

    /// Takes the name. False when another process has it, or there is no bus.
    bool claim();
    /// Has the process that has the name open these demos, or come to the front when there are
    /// none. Waits some seconds for it; false when it does not answer.
    bool handOver(const QStringList &paths) const;

    /// What lets windows come to the front, as the desktop gave it to a process that it started.
    /// Ask before there is an application object, which takes it.
    static QVariantMap platformData();

public Q_SLOTS:
    // The names are the interface's.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameters,
                                     const QVariantMap &platformData);

Q_SIGNALS:
    /// Come to the front.
    void activated();
    /// Open these files.
    void opened(const QStringList &paths);
    /// A desktop action of the program's entry was chosen.
    void actionActivated(const QString &action);

private:
    static void usePlatformData(const QVariantMap &data);

    QDBusConnection m_bus;
    const QVariantMap m_platformData;
    bool m_isClaimed = false;
};

} // namespace velvane
