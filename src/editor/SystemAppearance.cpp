#include "editor/SystemAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace velvane {

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto path = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");
const auto accentColor = QStringLiteral("accent-color");
const auto reducedMotion = QStringLiteral("reduced-motion");
// What desktops have that do not know the setting for all of them yet.
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto enableAnimations = QStringLiteral("enable-animations");

std::optional<bool> darkFrom(const QVariant &value)
{
    switch (value.toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        return {}; // no preference
    }
}

/// Three numbers from 0 to 1; anything else means that no colour is set.
QColor colorFrom(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return {};
    double red = -1;
    double green = -1;
    double blue = -1;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    const auto valid = [](double channel) { return channel >= 0 && channel <= 1; };
    return valid(red) && valid(green) && valid(blue)
               ? QColor::fromRgbF(float(red), float(green), float(blue))
               : QColor();
}

/// Older portals wrap the value twice.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

SystemAppearance::SystemAppearance(QObject *parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    ask(appearance, colorScheme);
    ask(appearance, accentColor);
    ask(appearance, reducedMotion);
    ask(gnome, enableAnimations);
}

void SystemAppearance::ask(const QString &group, const QString &key)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, group, key](QDBusPendingCallWatcher *finished) {
                const QDBusPendingReply<QDBusVariant> reply = *finished;
                if (!reply.isError())
                    take(group, key, unwrapped(reply.value().variant()));
                finished->deleteLater();
            });
}

void SystemAppearance::settingChanged(const QDBusMessage &message)
{
    if (message.signature() != QLatin1String("ssv"))
        return;
    const QVariantList arguments = message.arguments();
    take(arguments[0].toString(), arguments[1].toString(), unwrapped(arguments[2]));
}

void SystemAppearance::take(const QString &group, const QString &key, const QVariant &value)
{
    const auto darkBefore = m_prefersDark;
    const QColor accentBefore = m_accent;
    const bool stillBefore = wantsLessMotion();
    if (group == appearance && key == colorScheme)
        m_prefersDark = darkFrom(value);
    else if (group == appearance && key == accentColor)
        m_accent = colorFrom(value);
    else if (group == appearance && key == reducedMotion)
        m_reducesMotion = value.toUInt() == 1;
    else if (group == gnome && key == enableAnimations)
        m_animates = value.toBool();
    if (m_prefersDark != darkBefore || m_accent != accentBefore || wantsLessMotion() != stillBefore)
        Q_EMIT changed();
}

} // namespace velvane
