#include "app/VelvaneApp.h"
#include "cli/CommandLine.h"
#include "language/Languages.h"

#include <QGuiApplication>

#include <csignal>

#include <unistd.h>

namespace {

// Libraries' remarks would stand between the one line that a user is to read.
void onlyFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || !qEnvironmentVariableIsEmpty("VELVANE_DEBUG"))
        std::cerr << message.toStdString() << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(onlyFatal);
    // A file that may not grow is an error to report, as a full disk is.
    std::signal(SIGXFSZ, SIG_IGN);
    velvane::Languages::choose(velvane::Languages::asked(argc, argv));
    velvane::cli::CommandLine commandLine({.interactive = isatty(STDERR_FILENO) != 0});
    if (const auto status = commandLine.parse(argc, argv))
        return *status;
    if (!commandLine.hasCommand())
        return velvane::VelvaneApp::run(argc, argv,
                                        {.demos = commandLine.demos(),
                                         .newInstance = commandLine.newInstance(),
                                         .service = commandLine.service()});
    if (commandLine.showsPanel() && velvane::VelvaneApp::hasDisplay()) {
        const auto application = velvane::VelvaneApp::makeApplication(argc, argv);
        return commandLine.run();
    }
    // Rendering needs fonts but no display; the applications that a demo starts need theirs.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (platform.isEmpty())
        qunsetenv("QT_QPA_PLATFORM");
    else
        qputenv("QT_QPA_PLATFORM", platform);
    velvane::Languages::install();
    return commandLine.run();
}
