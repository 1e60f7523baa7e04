#include "Eventually.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "support/Print.h"

#include <algorithm>

namespace velvane {

namespace {

class X11AppsTest : public testing::Test {
protected:
    std::optional<AppInfo> running(const QString &name)
    {
        const std::vector<AppInfo> apps = session.desktop().apps().running();
        const auto found = std::ranges::find(apps, name, &AppInfo::name);
        return found == apps.end() ? std::nullopt : std::optional(*found);
    }

    X11Session session;
    X11Connection connection;
};

// A program that ends with the test.
class Program {
public:
    Program(const QString &name, const QStringList &arguments) { m_process.start(name, arguments); }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};

} // namespace

TEST_F(X11AppsTest, ARealTerminalHasTheNameAndIconOfItsEntry)
{
    const Program terminal("xterm", {});
    ASSERT_TRUE(eventually([&] { return running("XTerm").has_value(); }));
    const AppInfo app = *running("XTerm");
    EXPECT_EQ(app.policy, AppPolicy::regular);
    EXPECT_EQ(app.pid, terminal.pid());
    EXPECT_FALSE(app.ours);
    EXPECT_TRUE(app.desktopFile.endsWith(".desktop"));
    EXPECT_EQ(session.desktop().apps().icon(app, 1).size(), QSize(16, 16));
    EXPECT_EQ(session.desktop().apps().icon(app, 2).size(), QSize(32, 32));
}

TEST_F(X11AppsTest, TwoWindowsOfOneEntryAreOneApplication)
{
    const Program one("xterm", {});
    const Program two("xterm", {});
    EXPECT_TRUE(eventually([&] {
        const auto app = running("XTerm");
        return app && app->windows.size() == 2;
    }));
}

TEST_F(X11AppsTest, AWindowOfAnInstalledApplicationTakesBothItsNames)
{
    session.install("org.example.Contract", "Contract Notes", "Vertragsnotizen");
    const TestWindow window(connection, "Contract", QRect(10, 10, 200, 100));
    const auto app = running("Contract Notes");
    ASSERT_TRUE(app);
    EXPECT_EQ(app->localizedName, "Vertragsnotizen");
    EXPECT_EQ(app->id, "org.example.Contract");
    EXPECT_TRUE(app->ours) << "the window belongs to this process";
}

TEST_F(X11AppsTest, AWindowWithoutAnEntryHasItsOwnPicture)
{
    TestWindow window(connection, "Nameless Tool", QRect(10, 10, 200, 100));
    std::vector<uint32_t> picture{32, 32};
    picture.resize(2 + 32 * 32, 0xff00ff00);
    window.setNumbers("_NET_WM_ICON", XCB_ATOM_CARDINAL, picture);
    const auto app = running("Nameless Tool");
    ASSERT_TRUE(app);
    const QImage icon = session.desktop().apps().icon(*app, 2);
    ASSERT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(icon.pixelColor(4, 4), QColor(Qt::green));
}

TEST_F(X11AppsTest, AWindowThatTheTaskbarSkipsIsNoRegularApplication)
{
    const TestWindow window(connection, "Contract Helper", QRect(10, 10, 200, 100),
                            TestWindow::Type::helper);
    const auto app = running("Contract Helper");
    ASSERT_TRUE(app);
    EXPECT_EQ(app->policy, AppPolicy::accessory);
}

TEST_F(X11AppsTest, AWindowOfAnotherMachineHasNoProcess)
{
    TestWindow window(connection, "Contract Remote", QRect(10, 10, 200, 100));
    window.setBytes("WM_CLIENT_MACHINE", XCB_ATOM_STRING, "another-machine.example");
    const auto app = running("Contract Remote");
    ASSERT_TRUE(app);
    EXPECT_EQ(app->pid, 0);
    EXPECT_FALSE(app->ours);
}

TEST_F(X11AppsTest, NonsenseOnAWindowIsSurvived)
{
    TestWindow window(connection, "Contract Odd", QRect(10, 10, 200, 100));
    window.setBytes("_NET_WM_PID", XCB_ATOM_STRING, "text");
    window.setBytes("_NET_WM_ICON", XCB_ATOM_STRING, "text");
    window.setNumbers("WM_CLASS", XCB_ATOM_CARDINAL, {1, 2, 3});
    window.setNumbers("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {0, 0xffffffff});
    const auto app = running("Contract Odd");
    ASSERT_TRUE(app) << "without a class the title names it";
    EXPECT_EQ(app->pid, 0);
    // The window manager may have put a picture of its own there meanwhile.
    const QImage icon = session.desktop().apps().icon(*app, 1);
    EXPECT_TRUE(icon.isNull() || icon.size() == QSize(16, 16));
}

TEST_F(X11AppsTest, APanelTakesItsPartOfTheVisibleArea)
{
    Screens &screens = session.desktop().screens();
    const QRectF before = screens.primaryDisplay()->visible;
    const TestWindow panel(connection, "Contract Panel", QRect(0, 0, 1920, 40),
                           TestWindow::Type::panel);
    EXPECT_TRUE(eventually(
        [&] { return screens.primaryDisplay()->visible == before.adjusted(0, 40, 0, 0); }));
}

} // namespace velvane
