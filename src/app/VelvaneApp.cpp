#include "app/VelvaneApp.h"

#include "app/EditorWindow.h"
#include "app/StartWindow.h"
#include "app/UpdaterController.h"
#include "base/FreeMemory.h"
#include "cli/Console.h"
#include "editor/Theme.h"
#include "language/Languages.h"
#include "model/DocumentError.h"

#include <QFile>
#include <QIcon>
#include <QSettings>
#include <QTimer>

#include <cstdlib>
#include <iostream>

// A static library's resources are linked only where they are named, outside any namespace.
static void loadIcons()
{
    Q_INIT_RESOURCE(app);
}

namespace velvane {

namespace {

// The bus starts the program only to call it.
constexpr auto patienceForCalls = std::chrono::seconds(10);

// Qt ends the process when the display does not answer, after a page of advice.
void oneLineWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    const QString display =
        qEnvironmentVariable("DISPLAY", qEnvironmentVariable("WAYLAND_DISPLAY"));
    std::cerr << "velvane: "
              << cli::tr("the display %1 cannot be opened").arg(display).toStdString() << '\n';
    std::_Exit(1);
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("orvikel"));
    QCoreApplication::setApplicationName(QStringLiteral("velvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELVANE_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Velvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.orvikel.velvane"));
}

// Qt ends the process by exit() when the X server goes, which may be how a session ends.
void keepWhenTheDisplayGoes(Autosave *autosave)
{
    static Autosave *kept = nullptr;
    static const bool isRegistered = std::atexit([] {
                                         if (kept)
                                             kept->keepAll();
                                     })
                                     == 0;
    kept = isRegistered ? autosave : nullptr;
}

} // namespace

VelvaneApp::VelvaneApp(Desktop &desktop, QSettings &settings, AppService &service)
    : m_documents(desktop, settings)
    , m_autosave(m_documents, KeptSession::standardFolder())
    , m_restoring(m_autosave, KeptSession::standardFolder())
    , m_delegate(m_documents, m_autosave)
{
    QGuiApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QObject::connect(&m_delegate, &AppDelegate::terminated, qApp, [] { QCoreApplication::exit(); });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_delegate,
                     &AppDelegate::sessionWillEnd, Qt::DirectConnection);
    QObject::connect(&m_endSignals, &EndSignals::received, &m_delegate, &AppDelegate::end);
    QObject::connect(&m_restoring, &Restoring::answered, &m_delegate, [this] { openNewIfNone(); });
    serve(service);
    keepWhenTheDisplayGoes(&m_autosave);
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
    Languages::install();
    return application;
}

VelvaneApp::~VelvaneApp()
{
    keepWhenTheDisplayGoes(nullptr);
}

void VelvaneApp::serve(AppService &service)
{
    QObject::connect(&service, &AppService::activated, &m_delegate, &AppDelegate::comeForward);
    QObject::connect(&service, &AppService::opened, &m_delegate, &AppDelegate::open);
    QObject::connect(&service, &AppService::actionActivated, &m_delegate,
                     [this](const QString &action) {
                         if (action == AppService::newDemo)
                             m_documents.newDemo();
                         m_delegate.comeForward();
                     });
}

std::optional<std::vector<VelvaneApp::Read>> VelvaneApp::read(const std::vector<std::string> &demos)
{
    std::vector<Read> documents;
    for (const std::string &demo : demos) {
        const DocumentFile file(QFile::decodeName(demo.c_str()));
        try {
            documents.emplace_back(file, DemoDocument::read(file.path()));
        } catch (const DocumentError &error) {
            std::cerr << "velvane: " << demo << ": " << error.what() << '\n';
            return {};
        }
    }
    return documents;
}

void VelvaneApp::open(std::vector<Read> demos, bool service)
{
    m_restoring.reopen();
    for (auto &[file, document] : demos)
        m_documents.add(std::move(document), file);
    const QList<EditorWindow *> &windows = m_documents.windows();
    if (m_restoring.offer(windows.isEmpty() ? nullptr : windows.constLast()))
        return;
    if (service)
        QTimer::singleShot(patienceForCalls, &m_delegate, [this] { openNewIfNone(); });
    else
        openNewIfNone();
}

void VelvaneApp::openNewIfNone()
{
    if (m_documents.windows().isEmpty() && !m_delegate.startWindow().isVisible())
        m_documents.newDemo();
}

int VelvaneApp::run(int &argc, char **argv, const Start &start)
{
    if (!hasDisplay()) {
        std::cerr << "velvane: " << cli::help("there is no display to open a window on") << ' '
                  << cli::help("(see velvane --help)") << '\n';
        return 1;
    }
    useOneHeap();
    const QVariantMap platformData = AppService::platformData();
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    nameApplication();
    // All are read before any window opens, here or in the process that runs already.
    auto demos = read(start.demos);
    if (!demos)
        return 1;
    AppService service(QDBusConnection::sessionBus(), platformData);
    QStringList paths;
    for (const auto &[file, document] : *demos)
        paths.append(file.path());
    if (!start.newInstance && !service.claim() && service.handOver(paths))
        return 0;
    loadIcons();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/app/velvane.svg")));
    Theme::instance().install(*application);
    const std::unique_ptr<Desktop> desktop = Desktop::open();
    QSettings settings;
    VelvaneApp app(*desktop, settings, service);
    app.open(std::move(*demos), start.service);
    UpdaterController::shared().start();
    return QApplication::exec();
}

} // namespace velvane
