#include "app/AppService.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QUrl>

#include <array>

namespace velvane {

namespace {

const auto objectPath = QStringLiteral("/com/orvikel/velvane");
const auto interfaceName = QStringLiteral("org.freedesktop.Application");

// Milliseconds; it may be busy saving a large demo.
constexpr int patience = 10'000;

struct Token {
    const char *variable;
    QString key;
};

const std::array<Token, 2> &tokens()
{
    static const std::array<Token, 2> known{
        Token{"XDG_ACTIVATION_TOKEN", QStringLiteral("activation-token")},
        Token{"DESKTOP_STARTUP_ID", QStringLiteral("desktop-startup-id")}};
    return known;
}

} // namespace

const QString AppService::name = QStringLiteral("com.orvikel.velvane");
const QString AppService::newDemo = QStringLiteral("new-demo");

AppService::AppService(const QDBusConnection &bus, const QVariantMap &platformData)
    : m_bus(bus)
    , m_platformData(platformData)
{}

AppService::~AppService()
{
    if (!m_isClaimed)
        return;
    m_bus.interface()->unregisterService(name);
    m_bus.unregisterObject(objectPath);
}

bool AppService::claim()
{
    if (!m_bus.isConnected())
        return false;
    // The object first: who finds the name may call at once.
    m_bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    m_isClaimed = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!m_isClaimed)
        m_bus.unregisterObject(objectPath);
    return m_isClaimed;
}

bool AppService::handOver(const QStringList &paths) const
{
    if (!m_bus.isConnected() || !m_bus.interface()->isServiceRegistered(name))
        return false;
    const bool opens = !paths.isEmpty();
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, objectPath, interfaceName,
                                       opens ? QStringLiteral("Open") : QStringLiteral("Activate"));
    if (opens) {
        QStringList uris;
        for (const QString &path : paths)
            uris.append(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath())
                            .toString(QUrl::FullyEncoded));
        call << uris;
    }
    call << m_platformData;
    return m_bus.call(call, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

QVariantMap AppService::platformData()
{
    QVariantMap data;
    for (const Token &token : tokens()) {
        if (qEnvironmentVariableIsSet(token.variable))
            data.insert(token.key, qEnvironmentVariable(token.variable));
    }
    return data;
}

// Qt looks for a token where the desktop puts that of a process that it starts.
void AppService::usePlatformData(const QVariantMap &data)
{
    for (const Token &token : tokens()) {
        const QString value = data.value(token.key).toString();
        if (!value.isEmpty())
            qputenv(token.variable, value.toUtf8());
    }
}

void AppService::Activate(const QVariantMap &platformData)
{
    usePlatformData(platformData);
    Q_EMIT activated();
}

void AppService::Open(const QStringList &uris, const QVariantMap &platformData)
{
    usePlatformData(platformData);
    QStringList paths;
    for (const QString &uri : uris)
        if (const QUrl url(uri); url.isLocalFile())
            paths.append(url.toLocalFile());
    Q_EMIT opened(paths);
}

void AppService::ActivateAction(const QString &action, const QVariantList &,
                                const QVariantMap &platformData)
{
    usePlatformData(platformData);
    Q_EMIT actionActivated(action);
}

} // namespace velvane
