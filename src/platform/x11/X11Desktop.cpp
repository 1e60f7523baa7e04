#include "platform/x11/X11Desktop.h"

#include "platform/freedesktop/SessionServices.h"
#include "platform/x11/X11Compositor.h"
#include "platform/x11/X11Facts.h"
#include "platform/x11/X11Watchdog.h"

#include <QCoreApplication>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("X11Desktop", text);
}

bool isWayland(const QProcessEnvironment &environment)
{
    return !environment.value("WAYLAND_DISPLAY").isEmpty();
}

} // namespace

X11Desktop::X11Desktop(const QProcessEnvironment &environment)
    : m_display(environment.value("DISPLAY"))
    , m_connection(m_display.toLocal8Bit())
    , m_listener(m_connection, m_display.toLocal8Bit(), m_postedKeys)
    , m_manager(m_connection, isWayland(environment))
    , m_apps(m_connection, m_manager, environment)
    , m_screens(m_connection)
    , m_windows(m_connection, m_manager, m_screens, m_apps)
    , m_permissions(m_connection, isWayland(environment))
    , m_shell(m_manager, m_apps, m_permissions)
    , m_input(m_connection, m_display.toLocal8Bit(), isWayland(environment), m_postedKeys)
    , m_tap(m_listener, m_display.toLocal8Bit(), m_clock)
    , m_keys(m_listener)
    , m_capture(m_connection, m_display.toLocal8Bit(), m_clock)
{}

QString X11Desktop::description() const
{
    if (!m_connection.isOpen())
        return tr("no display");
    const QString server = tr("X11 display %1").arg(m_display);
    return hasCompositor(m_connection) ? tr("%1, with a compositor").arg(server)
                                       : tr("%1, without a compositor").arg(server);
}

DesktopFact X11Desktop::windowManager() const
{
    const QString what = tr("Window manager");
    const QString name = m_manager.name();
    const QString missing = m_manager.missing();
    if (!missing.isEmpty())
        return {what, name.isEmpty() ? tr("none that can be asked (EWMH)") : name, missing};
    const QStringList lacking = m_manager.lacking();
    if (lacking.isEmpty())
        return {what, tr("%1, can be asked (EWMH)").arg(name), {}};
    return {what, tr("%1, without %2").arg(name, lacking.join(", ")),
            tr("Switching applications or moving their windows may not work; "
               "use another window manager.")};
}

DesktopFact X11Desktop::watchdog()
{
    const QString what = tr("Watchdog");
    if (!X11Watchdog::program().isEmpty())
        return {what, tr("releases what is held if Velvane ends"), {}};
    return {what, tr("missing"), tr("Install Velvane again: velvane-watchdog is not beside it.")};
}

std::vector<DesktopFact> X11Desktop::facts() const
{
    std::vector<DesktopFact> facts;
    if (m_connection.isOpen()) {
        const QString compositor =
            m_manager.isComposited() ? tr("running") : tr("none; none is needed");
        facts = {windowManager(), {tr("Compositor"), compositor, {}}};
    }
    for (const auto &more : {X11Facts::of(m_connection), {watchdog()}, SessionServices::facts()})
        facts.insert(facts.end(), more.begin(), more.end());
    return facts;
}

} // namespace velvane
