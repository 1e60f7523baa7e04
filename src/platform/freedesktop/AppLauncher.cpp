#include "platform/freedesktop/AppLauncher.h"

#include "base/Background.h"
#include "platform/Sandbox.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace velvane {

namespace {

// An id that can be the name of a service: parts of letters, digits, '_' and '-' between dots.
bool isServiceName(const QString &id)
{
    const QStringList parts = id.split(u'.');
    const auto isPart = [](const QString &part) {
        const auto fits = [](QChar c) {
            return (c.unicode() < 128 && c.isLetterOrNumber()) || c == u'_' || c == u'-';
        };
        return !part.isEmpty() && !part.front().isDigit() && std::ranges::all_of(part, fits);
    };
    return parts.size() > 1 && id.size() < 256 && std::ranges::all_of(parts, isPart);
}

// By its path; by its name where it is out of our sight but there.
QString findProgram(const QString &name, const QProcessEnvironment &environment)
{
    if (!Sandbox::isAround())
        return QStandardPaths::findExecutable(name, environment.value("PATH").split(u':'));
    const QStringList folders{Sandbox::seenFromInside("/usr/local/bin"),
                              Sandbox::seenFromInside("/usr/bin")};
    return QStandardPaths::findExecutable(name, folders).isEmpty() ? QString() : name;
}

void start(const DesktopEntry &entry, const QProcessEnvironment &environment)
{
    QStringList command = commandOf(entry);
    if (command.isEmpty())
        return;
    if (entry.terminal) {
        command = AppLauncher::inTerminal(
            command, [&](const QString &name) { return findProgram(name, environment); });
    }
    const QString folder = QDir(entry.folder).isAbsolute() ? entry.folder : QDir::homePath();
    if (Sandbox::isAround())
        command = Sandbox::inSession(command, folder);
    QProcess process;
    process.setProgram(command.takeFirst());
    process.setArguments(command);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(Sandbox::isAround() ? QDir::homePath() : folder);
    // Our own output is for our results.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

// On the main thread. The answer is waited for by the event loop; without one there is none.
void activateService(const DesktopEntry &entry, const QProcessEnvironment &environment)
{
    QString path = u'/' + entry.id;
    path.replace(u'.', u'/').replace(u'-', u'_');
    QDBusMessage call =
        QDBusMessage::createMethodCall(entry.id, path, "org.freedesktop.Application", "Activate");
    call << QVariantMap();
    const QDBusPendingCall answer = QDBusConnection::sessionBus().asyncCall(call);
    auto *watcher = new QDBusPendingCallWatcher(answer, qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [=] {
        watcher->deleteLater();
        // One that only takes its time will still come.
        const bool slow = watcher->error().type() == QDBusError::NoReply
                          || watcher->error().type() == QDBusError::Timeout;
        if (watcher->isError() && !slow)
            start(entry, environment);
    });
}

QProcessEnvironment withoutStartup(QProcessEnvironment environment)
{
    // These name our own start, which an application must not claim as its own.
    environment.remove("DESKTOP_STARTUP_ID");
    environment.remove("XDG_ACTIVATION_TOKEN");
    return environment;
}

} // namespace

AppLauncher::AppLauncher(QProcessEnvironment environment)
    : m_environment(withoutStartup(std::move(environment)))
{}

void AppLauncher::launch(const DesktopEntry &entry) const
{
    const bool byService = entry.dBusActivatable && isServiceName(entry.id)
                           && QDBusConnection::sessionBus().isConnected();
    if (!byService || !qApp) {
        start(entry, m_environment);
        return;
    }
    onMainThread([entry, environment = m_environment] { activateService(entry, environment); });
}

QStringList AppLauncher::inTerminal(const QStringList &command,
                                    const std::function<QString(const QString &)> &find)
{
    struct Terminal {
        QString program;
        QStringList option;
    };
    // The first two stand for what the user or the system has chosen.
    const std::array<Terminal, 6> known{
        Terminal{"xdg-terminal-exec", {}}, {"x-terminal-emulator", {"-e"}},
        {"gnome-terminal", {"--"}},        {"konsole", {"-e"}},
        {"xfce4-terminal", {"-x"}},        {"xterm", {"-e"}}};
    for (const Terminal &terminal : known) {
        const QString program = find(terminal.program);
        if (!program.isEmpty())
            return QStringList(program) + terminal.option + command;
    }
    return command;
}

} // namespace velvane
