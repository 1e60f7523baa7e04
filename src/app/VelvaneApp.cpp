#include "app/VelvaneApp.h"

#include "app/EditorWindow.h"
#include "app/UpdaterController.h"
#include "editor/Theme.h"
#include "model/DocumentError.h"

#include <QFile>
#include <QIcon>
#include <QSettings>

#include <iostream>

// A static library's resources are linked only where they are named, outside any namespace.
static void loadIcons()
{
    Q_INIT_RESOURCE(app);
}

namespace velvane {

namespace {

// Qt ends the process when the display does not answer, after a page of advice.
void oneLineWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    std::cerr
        << "velvane: the display "
        << qEnvironmentVariable("DISPLAY", qEnvironmentVariable("WAYLAND_DISPLAY")).toStdString()
        << " cannot be opened\n";
    std::_Exit(1);
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("orvikel"));
    QCoreApplication::setApplicationName(QStringLiteral("velvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELVANE_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Velvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.orvikel.velvane"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/app/velvane.svg")));
}

} // namespace

VelvaneApp::VelvaneApp(Desktop &desktop, QSettings &settings)
    : m_documents(desktop, settings)
    , m_delegate(m_documents)
{
    QGuiApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QObject::connect(&m_delegate, &AppDelegate::terminated, qApp, [] { QCoreApplication::exit(); });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_delegate,
                     &AppDelegate::sessionWillEnd, Qt::DirectConnection);
}

bool VelvaneApp::hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
           || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
           || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

std::unique_ptr<QApplication> VelvaneApp::makeApplication(int &argc, char **argv)
{
    const QtMessageHandler usual = qInstallMessageHandler(oneLineWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    return application;
}

bool VelvaneApp::open(const std::vector<std::string> &demos)
{
    // All are read before any window opens.
    std::vector<std::pair<DocumentFile, std::unique_ptr<DemoDocument>>> documents;
    for (const std::string &demo : demos) {
        const DocumentFile file(QFile::decodeName(demo.c_str()));
        try {
            documents.emplace_back(file, DemoDocument::read(file.path()));
        } catch (const DocumentError &error) {
            std::cerr << "velvane: " << demo << ": " << error.what() << '\n';
            return false;
        }
    }
    for (auto &[file, document] : documents)
        m_documents.add(std::move(document), file);
    if (documents.empty())
        m_documents.newDemo();
    return true;
}

int VelvaneApp::run(int &argc, char **argv, const std::vector<std::string> &demos)
{
    if (!hasDisplay()) {
        std::cerr << "velvane: there is no display to open a window on (see velvane --help)\n";
        return 1;
    }
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    loadIcons();
    nameApplication();
    Theme::instance().install(*application);
    const std::unique_ptr<Desktop> desktop = Desktop::open();
    QSettings settings;
    VelvaneApp app(*desktop, settings);
    if (!app.open(demos))
        return 1;
    UpdaterController::shared().start();
    return QApplication::exec();
}

} // namespace velvane
