#include "Eventually.h"
#include "X11Session.h"
#include "support/Print.h"

#include <array>
#include <csignal>
#include <unistd.h>

namespace velvane {

TEST(X11Server, WithoutAWindowManagerNothingRunsAndTheWholeDisplayIsVisible)
{
    const TestServer server({"-screen", "0", "1366x768x24"});
    X11Session session(server.display());
    EXPECT_TRUE(session.desktop().apps().running().empty());
    const auto display = session.desktop().screens().primaryDisplay();
    ASSERT_TRUE(display);
    EXPECT_EQ(display->frame, QRectF(0, 0, 1366, 768));
    EXPECT_EQ(display->visible, display->frame);
}

TEST(X11Server, WithoutRandrTheRootWindowIsTheDisplay)
{
    const TestServer server({"-screen", "0", "800x600x24", "-extension", "RANDR"});
    X11Session session(server.display());
    const auto displays = session.desktop().screens().displays();
    ASSERT_EQ(displays.size(), 1U);
    EXPECT_EQ(displays.front().frame, QRectF(0, 0, 800, 600));
    EXPECT_TRUE(displays.front().primary);
}

TEST(X11Server, WithoutTheRecordExtensionNothingMayListenOrPost)
{
    const TestServer server({"-extension", "RECORD"});
    X11Session session(server.display());
    Permissions &permissions = session.desktop().permissions();
    EXPECT_FALSE(permissions.granted(Permission::inputMonitoring));
    EXPECT_FALSE(permissions.granted(Permission::accessibility));
    EXPECT_TRUE(permissions.granted(Permission::screenRecording));
    EXPECT_TRUE(permissions.explanation(Permission::inputMonitoring).contains("RECORD"));
}

TEST(X11Server, WhatIsWrittenToOneThatHasGoneIsAnErrorAndNoSignal)
{
    // As a program has it that starts no other.
    std::signal(SIGPIPE, SIG_DFL);
    const X11Connection connection;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    EXPECT_EQ(write(ends[1], "", 1), -1);
    EXPECT_EQ(errno, EPIPE);
    close(ends[1]);
}

TEST(X11Server, OneThatGoesAwayLeavesEmptyAnswers)
{
    TestServer server;
    X11Session session(server.display());
    X11Desktop &desktop = session.desktop();
    ASSERT_FALSE(desktop.screens().displays().empty());
    server.stop();
    for (int again = 0; again < 2; ++again) {
        EXPECT_TRUE(desktop.screens().displays().empty());
        EXPECT_FALSE(desktop.screens().mainDisplay());
        EXPECT_FALSE(desktop.screens().pointer());
        EXPECT_TRUE(desktop.apps().running().empty());
        EXPECT_FALSE(desktop.permissions().granted(Permission::screenRecording));
    }
    AppInfo gone;
    gone.windows = {0x400001};
    EXPECT_TRUE(desktop.apps().icon(gone, 2).isNull());
    EXPECT_FALSE(desktop.screens().missing().isEmpty());
    EXPECT_FALSE(desktop.apps().installed().empty()) << "files are still there";
}

TEST(X11Server, WhatLiesLeftOfThePrimaryMonitorHasNegativePlaces)
{
    const TestServer server({"-screen", "0", "2000x800x24"});
    const QString display = QString::fromLocal8Bit(server.display());
    const QStringList lay{"-display", display, "--setmonitor", "*right", "1200/300x800/200+800+0",
                          "none"};
    ASSERT_EQ(QProcess::execute("xrandr", lay), 0);
    X11Connection connection(server.display());
    X11Session session(server.display());
    const auto displays = session.desktop().screens().displays();
    ASSERT_EQ(displays.size(), 2U);
    EXPECT_EQ(displays[0].name, "right");
    EXPECT_EQ(displays[0].frame, QRectF(0, 0, 1200, 800));
    EXPECT_EQ(displays[1].frame, QRectF(-800, 0, 2000, 800));

    xcb_warp_pointer(connection.get(), XCB_NONE, connection.root(), 0, 0, 0, 0, 100, 50);
    xcb_flush(connection.get());
    EXPECT_TRUE(
        eventually([&] { return session.desktop().screens().pointer() == QPointF(-700, 50); }));
}

TEST(X11Server, TheMainDisplayIsTheOneOfTheActiveWindow)
{
    const TestServer server({"-screen", "0", "2000x800x24"});
    const QStringList lay{"-display",
                          QString::fromLocal8Bit(server.display()),
                          "--setmonitor",
                          "*right",
                          "1200/300x800/200+800+0",
                          "none"};
    ASSERT_EQ(QProcess::execute("xrandr", lay), 0);
    X11Session session(server.display());
    Screens &screens = session.desktop().screens();
    EXPECT_EQ(screens.mainDisplay()->name, "right") << "the primary, as nothing is active";

    // There is no window manager: the test itself says which window is active.
    X11Connection connection(server.display());
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), 100, 100,
                      300, 200, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto activate = [&](xcb_window_t active) {
        xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, connection.root(),
                            connection.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1, &active);
        xcb_flush(connection.get());
    };
    activate(window);
    EXPECT_TRUE(eventually([&] { return screens.mainDisplay()->name == "screen"; }));
    activate(0x12345);
    EXPECT_TRUE(eventually([&] { return screens.mainDisplay()->name == "right"; }))
        << "a window that is gone";
}

TEST(X11Server, EventsThatNobodyReadsDoNotPileUp)
{
    const TestServer server;
    const X11Connection user(server.display());
    const X11Connection shared(server.display());
    X11Screens screens(shared);
    // Every connection is told.
    constexpr xcb_keysym_t letter = 'x';
    for (int i = 0; i < 100; ++i)
        xcb_change_keyboard_mapping(user.get(), 1, 200, 1, &letter);
    xcb_flush(user.get());
    const auto next = [&] {
        shared.hasExtension("RANDR"); // reads what has come
        return XReply<xcb_generic_event_t>(xcb_poll_for_queued_event(shared.get()));
    };
    XReply<xcb_generic_event_t> event;
    ASSERT_TRUE(eventually([&] { return bool(event = next()); }));
    EXPECT_EQ(event->response_type & 0x7F, XCB_MAPPING_NOTIFY);
    user.hasExtension("RANDR"); // all are under way
    EXPECT_TRUE(eventually([&] {
        screens.pointer();
        return !next();
    }));
    EXPECT_FALSE(next());
}

namespace {

// Asks for all that takes a window manager.
void askEverything(X11Desktop &desktop, const AppInfo &app, quint64 window)
{
    desktop.apps().activate(app);
    desktop.apps().hide(app);
    desktop.windows().moveWindow(window, {10, 20});
    desktop.shell().hide();
    desktop.shell().unhide();
    desktop.shell().activate();
}

// A window manager on a server of the test's own.
class Openbox {
public:
    explicit Openbox(const TestServer &server)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", QString::fromLocal8Bit(server.display()));
        m_process.setProcessEnvironment(environment);
        m_process.start("openbox", {});
    }
    ~Openbox()
    {
        ::kill(pid(), SIGCONT);
        m_process.kill();
        m_process.waitForFinished();
    }
    Openbox(const Openbox &) = delete;
    Openbox &operator=(const Openbox &) = delete;
    pid_t pid() const { return static_cast<pid_t>(m_process.processId()); }

private:
    QProcess m_process;
};

} // namespace

TEST(X11Server, WithoutAWindowManagerTheReasonIsGivenAndNothingIsDone)
{
    const TestServer server;
    X11Session session(server.display());
    X11Desktop &desktop = session.desktop();
    for (const QString &reason :
         {desktop.apps().missing(), desktop.windows().missing(), desktop.shell().missing()})
        EXPECT_EQ(reason, "No window manager that can be asked (EWMH) is running. Start one.");
    askEverything(desktop, {}, 0x400001);
    EXPECT_TRUE(desktop.windows().windows().empty());
    ASSERT_FALSE(desktop.facts().empty());
    EXPECT_EQ(desktop.facts().front().state, "none that can be asked (EWMH)");
}

TEST(X11Server, AWindowManagerIsThereAsSoonAsItRuns)
{
    const TestServer server;
    X11Session session(server.display());
    {
        const Openbox openbox(server);
        EXPECT_TRUE(eventually([&] { return session.desktop().windows().missing().isEmpty(); }));
        EXPECT_EQ(session.desktop().facts().front().state, "Openbox, can be asked (EWMH)");
        EXPECT_EQ(session.desktop().facts().front().remedy, "");
    }
    EXPECT_TRUE(eventually([&] { return !session.desktop().windows().missing().isEmpty(); }));
}

TEST(X11Server, OneThatGoesAwayWhileWindowsAreControlledIsSurvived)
{
    TestServer server;
    X11Session session(server.display());
    X11Desktop &desktop = session.desktop();
    const Openbox openbox(server);
    ASSERT_TRUE(eventually([&] { return desktop.windows().missing().isEmpty(); }));
    QProcess terminal;
    terminal.start("xterm", {"-display", QString::fromLocal8Bit(server.display())});
    ASSERT_TRUE(eventually([&] { return !desktop.windows().windows().empty(); }));
    const WindowInfo window = desktop.windows().windows().front();
    server.stop();
    askEverything(desktop, window.owner, window.id);
    EXPECT_TRUE(desktop.windows().windows().empty());
    EXPECT_EQ(desktop.windows().missing(), "There is no display.");
    terminal.waitForFinished();
}

TEST(X11Server, AWindowManagerThatDoesNotAnswerHoldsNothingUp)
{
    const TestServer server;
    X11Session session(server.display());
    X11Desktop &desktop = session.desktop();
    const Openbox openbox(server);
    ASSERT_TRUE(eventually([&] { return desktop.windows().missing().isEmpty(); }));
    QProcess terminal;
    terminal.start("xterm", {"-display", QString::fromLocal8Bit(server.display())});
    ASSERT_TRUE(eventually([&] { return !desktop.windows().windows().empty(); }));
    const WindowInfo window = desktop.windows().windows().front();
    ::kill(openbox.pid(), SIGSTOP);
    for (int again = 0; again < 100; ++again)
        askEverything(desktop, window.owner, window.id);
    desktop.apps().activate(window.owner);
    EXPECT_EQ(desktop.windows().windows().size(), 1U);
    ::kill(openbox.pid(), SIGCONT);
    EXPECT_TRUE(eventually([&] { return desktop.windows().windows().front().onScreen; }))
        << "what was asked last";
    terminal.kill();
    terminal.waitForFinished();
}

} // namespace velvane
