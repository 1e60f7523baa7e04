#include "Eventually.h"
#include "Settled.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "platform/x11/X11Property.h"
#include "support/Print.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QUrl>

#include <algorithm>

#include <signal.h>

namespace velvane {

namespace {

class X11LaunchTest : public testing::Test {
protected:
    AppControl &apps() { return session.desktop().apps(); }

    void launch(const QString &name)
    {
        const std::vector<AppInfo> installed = apps().installed();
        const auto found = std::ranges::find(installed, name, &AppInfo::name);
        ASSERT_NE(found, installed.end()) << name.toStdString();
        apps().launch(*found);
    }

    std::optional<AppInfo> running(const QString &name)
    {
        const std::vector<AppInfo> all = apps().running();
        const auto found = std::ranges::find(all, name, &AppInfo::name);
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    /// Waits for an application, and ends it with the test.
    std::optional<AppInfo> started(const QString &name)
    {
        eventually([&] { return running(name).has_value(); });
        const std::optional<AppInfo> app = running(name);
        if (app && app->pid > 0)
            m_started << app->pid;
        return app;
    }

    std::optional<WindowInfo> mainWindow(const QString &name)
    {
        settled(connection);
        for (const WindowInfo &window : session.desktop().windows().windows()) {
            if (window.owner.name == name && window.main)
                return window;
        }
        return {};
    }

    void TearDown() override
    {
        for (const qint64 pid : m_started)
            ::kill(static_cast<pid_t>(pid), SIGTERM);
        eventually([&] {
            return std::ranges::none_of(
                apps().running(), [&](const AppInfo &app) { return m_started.contains(app.pid); });
        });
    }

    const QTemporaryDir folder;
    X11Session session;
    X11Connection connection;

private:
    QList<qint64> m_started;
};

// A service of the session bus, there as long as the test: each call becomes a line.
class FakeService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    FakeService(const QString &name, const QString &path) : m_name(name), m_path(path)
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.registerObject(m_path, this, QDBusConnection::ExportAllSlots);
        EXPECT_TRUE(bus.registerService(m_name)) << "a session bus is needed";
    }
    ~FakeService() override
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.unregisterService(m_name);
        bus.unregisterObject(m_path);
    }

    int activations = 0;

public Q_SLOTS:
    void Activate(const QVariantMap &) { ++activations; }

private:
    const QString m_name, m_path;
};

class FakeFileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    FakeFileManager()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.registerObject("/org/freedesktop/FileManager1", this, QDBusConnection::ExportAllSlots);
        EXPECT_TRUE(bus.registerService("org.freedesktop.FileManager1"));
    }
    ~FakeFileManager() override
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.unregisterService("org.freedesktop.FileManager1");
        bus.unregisterObject("/org/freedesktop/FileManager1");
    }

    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &addresses, const QString &) { shown << addresses; }
};

// Takes the place of whatever opens files.
class Opener : public QObject {
    Q_OBJECT
public:
    Opener() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler("file"); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &address) { opened << address; }
};

} // namespace

TEST_F(X11LaunchTest, AProgramGetsItsArgumentsAsTheyStandAndIsKnownByItsName)
{
    session.installEntry("contract", "Name=Contract \"Terminal\"/1\nStartupWMClass=ContractTerm\n"
                                     "Exec=xterm -class ContractTerm -T "
                                     "\"A \\\\\"quoted\\\\\" $HOME; title\" -e sleep 100\n");
    launch("Contract \"Terminal\"/1");
    ASSERT_TRUE(started("Contract \"Terminal\"/1"));
    const auto window = mainWindow("Contract \"Terminal\"/1");
    ASSERT_TRUE(window);
    EXPECT_EQ(window->title, "A \"quoted\" $HOME; title");
}

TEST_F(X11LaunchTest, AProgramForTerminalsGetsOne)
{
    ASSERT_TRUE(apps().running().empty());
    session.installEntry("contract", "Name=Contract Tool\nTerminal=true\nExec=sleep 100\n");
    launch("Contract Tool");
    ASSERT_TRUE(eventually([&] { return !apps().running().empty(); }));
    EXPECT_TRUE(started(apps().running().front().name));
}

TEST_F(X11LaunchTest, AProgramThatDoesNotExistIsSkippedSilently)
{
    session.installEntry("contract", "Name=Contract Nothing\nExec=/nonexistent/program\n");
    launch("Contract Nothing");
    settled(connection);
    EXPECT_TRUE(apps().running().empty());
}

TEST_F(X11LaunchTest, AServiceIsActivatedInsteadOfItsProgram)
{
    const FakeService service("org.example.Contract", "/org/example/Contract");
    const QString mark = folder.filePath("started");
    session.installEntry("org.example.Contract",
                         "Name=Contract Service\nDBusActivatable=true\nExec=touch " + mark + "\n");
    launch("Contract Service");
    EXPECT_TRUE(eventually([&] { return service.activations == 1; }));
    EXPECT_FALSE(QFile::exists(mark));
}

TEST_F(X11LaunchTest, AServiceThatIsNotThereIsStartedAsAProgram)
{
    const QString mark = folder.filePath("started");
    session.installEntry("org.example.Missing",
                         "Name=Contract Service\nDBusActivatable=true\nExec=touch " + mark + "\n");
    launch("Contract Service");
    EXPECT_TRUE(eventually([&] { return QFile::exists(mark); }));
}

TEST_F(X11LaunchTest, ARealEditorIsStartedCentredHiddenAndBroughtBack)
{
    launch("Mousepad");
    ASSERT_TRUE(started("Mousepad"));
    ASSERT_TRUE(eventually([&] { return mainWindow("Mousepad").has_value(); }));
    const WindowInfo window = *mainWindow("Mousepad");
    const QRectF visible = session.desktop().screens().mainDisplay()->visible;
    const QSizeF size = window.frame.size();
    const QPointF centred =
        visible.center() - QPointF(std::floor(size.width() / 2), std::floor(size.height() / 2));
    session.desktop().windows().moveWindow(window.id, centred);
    EXPECT_TRUE(eventually([&] {
        const auto now = mainWindow("Mousepad");
        return now && now->frame == QRectF(centred, size);
    }));
    apps().hide(*running("Mousepad"));
    EXPECT_TRUE(eventually([&] {
        const auto now = mainWindow("Mousepad");
        return now && !now->onScreen;
    }));
    apps().activate(*running("Mousepad"));
    EXPECT_TRUE(eventually([&] {
        const auto now = mainWindow("Mousepad");
        return now && now->onScreen && now->frame == QRectF(centred, size);
    }));
}

TEST_F(X11LaunchTest, ARevealedFileIsSelectedInTheFileManagerWhichComesForward)
{
    const FakeFileManager manager;
    const TestWindow files(connection, "Contract Files", QRect(50, 50, 400, 300));
    TestWindow other(connection, "Contract Other", QRect(80, 60, 400, 300));
    other.setNumbers("_NET_WM_PID", XCB_ATOM_CARDINAL, {1});
    // A window manager may give a new window the keyboard late.
    settled(connection);
    QFile file(folder.filePath(QString::fromUtf8("Über \"1\" #2.mp4")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_TRUE(session.desktop().shell().reveal(file.fileName()));
    ASSERT_TRUE(eventually([&] { return !manager.shown.isEmpty(); }));
    EXPECT_EQ(manager.shown, QStringList(QUrl::fromLocalFile(file.fileName()).toEncoded()));
    EXPECT_TRUE(eventually([&] {
        X11Property active(connection, connection.root(), "_NET_ACTIVE_WINDOW");
        const std::vector<uint32_t> numbers = active.numbers();
        return !numbers.empty() && numbers.front() == files.id();
    }));
}

TEST_F(X11LaunchTest, WithoutAFileManagerTheFolderIsOpened)
{
    const Opener opener;
    QFile file(folder.filePath("a.mp4"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_TRUE(session.desktop().shell().reveal(file.fileName()));
    EXPECT_EQ(opener.opened, QList<QUrl>({QUrl::fromLocalFile(folder.path())}));
}

TEST_F(X11LaunchTest, AFileThatIsNotThereIsNotRevealed)
{
    const FakeFileManager manager;
    EXPECT_FALSE(session.desktop().shell().reveal(folder.filePath("gone.mp4")));
    settled(connection);
    EXPECT_TRUE(manager.shown.isEmpty());
}

TEST_F(X11LaunchTest, ASettingsAddressOpensAPageThatExplains)
{
    const Opener opener;
    EXPECT_TRUE(session.desktop().shell().open(QUrl(SettingsAddress::accessibility)));
    ASSERT_EQ(opener.opened.size(), 1);
    QFile page(opener.opened.front().toLocalFile());
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("Driving the mouse and keyboard"));
}

TEST_F(X11LaunchTest, WhatIsNoAddressIsNotOpened)
{
    EXPECT_FALSE(session.desktop().shell().open(QUrl()));
    EXPECT_FALSE(session.desktop().shell().open(QUrl("no scheme at all")));
}

} // namespace velvane

#include "X11LaunchTests.moc"
