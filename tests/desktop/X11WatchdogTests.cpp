#include "Eventually.h"
#include "KeyboardMap.h"
#include "X11Session.h"
#include "platform/x11/X11Xkb.h"

#include <algorithm>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace velvane {

namespace {

// The watchdogs of a display, which no other test uses.
QList<pid_t> watchdogs(const QByteArray &display)
{
    QList<pid_t> found;
    for (const QString &name : QDir("/proc").entryList(QDir::Dirs)) {
        QFile file("/proc/" + name + "/cmdline");
        if (!file.open(QFile::ReadOnly))
            continue;
        const QByteArrayList words = file.readAll().split('\0');
        if (words.value(0).endsWith("/velvane-watchdog") && words.value(1) == display)
            found << name.toInt();
    }
    return found;
}

// Has it ended? Its command line goes before its files are closed; only a zombie has none left.
bool hasEnded(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QFile::ReadOnly))
        return true;
    const QByteArray line = file.readAll();
    return line.isEmpty() || line.mid(line.lastIndexOf(')') + 2).startsWith('Z');
}

// A server that does not reset when its last client leaves, which would release everything, and a
// program that posts to it.
class X11WatchdogTest : public testing::Test {
protected:
    ~X11WatchdogTest() override
    {
        program.kill();
        program.waitForFinished();
    }

    // Starts the program and waits until it says that it has begun.
    void start(const QStringList &arguments, const QByteArray &input = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", QString::fromLocal8Bit(server.display()));
        program.setProcessEnvironment(environment);
        program.setChildProcessModifier([] { setpgid(0, 0); });
        program.start(QCoreApplication::applicationDirPath() + "/post-input", arguments);
        program.write(input);
        program.closeWriteChannel();
        ASSERT_TRUE(eventually([&] { return program.bytesAvailable() > 0; }));
    }

    void end(int signal)
    {
        ::kill(pid_t(program.processId()), signal);
        ASSERT_TRUE(program.waitForFinished());
    }

    bool isButtonDown() const
    {
        const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
            connection.get(), xcb_query_pointer(connection.get(), connection.root()), nullptr));
        return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
    }

    bool isAnyKeyDown() const
    {
        const XReply<xcb_query_keymap_reply_t> reply(
            xcb_query_keymap_reply(connection.get(), xcb_query_keymap(connection.get()), nullptr));
        return reply && std::ranges::count(reply->keys, 0) != std::ssize(reply->keys);
    }

    QList<pid_t> guards() const { return watchdogs(server.display()); }

    TestServer server;
    X11Connection connection{server.display()};
    QProcess program;
};

// As long as it lives this process can open no file more.
class NoMoreFiles {
public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const int next = open("/dev/null", O_RDONLY | O_CLOEXEC);
        close(next);
        const rlimit none{rlim_t(next), m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &m_before); }
    NoMoreFiles(const NoMoreFiles &) = delete;
    NoMoreFiles &operator=(const NoMoreFiles &) = delete;

private:
    rlimit m_before{};
};

class X11WatchdogSignal : public X11WatchdogTest, public testing::WithParamInterface<int> {};

const QByteArray unusual = QByteArray("aé日本語ждñ").repeated(40);

} // namespace

TEST_P(X11WatchdogSignal, InTheMiddleOfAHoldLeavesNothingPressed)
{
    start({"hold", "200", "200"});
    ASSERT_TRUE(isButtonDown());
    ASSERT_EQ(guards().size(), 1);
    end(GetParam());
    EXPECT_TRUE(eventually([&] { return !isButtonDown(); }));
    EXPECT_TRUE(eventually([&] { return guards().isEmpty(); })) << "it ends with its program";
}

TEST_P(X11WatchdogSignal, InADragThatGoesOnAfterAClickLeavesNothingPressed)
{
    start({"drag", "200", "200"});
    ASSERT_TRUE(eventually([&] { return isButtonDown(); }));
    end(GetParam());
    EXPECT_TRUE(eventually([&] { return guards().isEmpty(); }));
    EXPECT_FALSE(isButtonDown());
}

TEST_P(X11WatchdogSignal, InTheMiddleOfTypingLeavesTheKeyboardAsItWas)
{
    useXkb(connection);
    lockModifiers(connection, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_LOCK);
    ASSERT_EQ(lockedModifiers(connection), XCB_MOD_MASK_LOCK);
    const QByteArray before = keyboardMap(server.display());
    start({"repeat", "0.001"}, unusual);
    ASSERT_NE(keyboardMap(server.display()), before);
    ASSERT_EQ(lockedModifiers(connection), 0);
    end(GetParam());
    EXPECT_TRUE(eventually([&] { return guards().isEmpty(); }));
    EXPECT_EQ(keyboardMap(server.display()), before);
    EXPECT_EQ(lockedModifiers(connection), XCB_MOD_MASK_LOCK);
    EXPECT_FALSE(isAnyKeyDown());
}

INSTANTIATE_TEST_SUITE_P(Signals, X11WatchdogSignal, testing::Values(SIGKILL, SIGTERM, SIGSEGV),
                         [](const auto &signal) { return sigabbrev_np(signal.param); });

TEST_F(X11WatchdogTest, OutlivesWhatEndsItsProgramsGroup)
{
    start({"hold", "200", "200"});
    ::kill(-pid_t(program.processId()), SIGKILL);
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_TRUE(eventually([&] { return !isButtonDown(); }));
}

TEST_F(X11WatchdogTest, HoldsNoFilesOfItsProgram)
{
    QFile inherited(QCoreApplication::applicationFilePath());
    ASSERT_TRUE(inherited.open(QFile::ReadOnly));
    start({"hold", "200", "200"});
    const QList<pid_t> found = guards();
    ASSERT_EQ(found.size(), 1);
    const QDir files(QStringLiteral("/proc/%1/fd").arg(found.front()));
    EXPECT_EQ(files.entryList(QDir::Files | QDir::System), QStringList({"0", "1", "2", "3"}))
        << "the socket, nothing twice, the server";
}

TEST_F(X11WatchdogTest, IsThereOnlyOncePostingHasBegunAndOnlyAsLongAsTheDesktop)
{
    {
        X11Session session(server.display());
        EXPECT_EQ(session.desktop().input().missing(), "");
        EXPECT_TRUE(guards().isEmpty());
        session.desktop().input().press(MouseButton::left, {50, 50});
        EXPECT_EQ(guards().size(), 1);
    }
    EXPECT_TRUE(eventually([&] { return guards().isEmpty(); }));
    EXPECT_FALSE(isButtonDown());
}

TEST_F(X11WatchdogTest, IsStartedAgainWhenItDied)
{
    X11Session session(server.display());
    InputSynthesizer &input = session.desktop().input();
    input.press(MouseButton::left, {50, 50});
    ASSERT_EQ(guards().size(), 1);
    const pid_t first = guards().front();
    ::kill(first, SIGKILL);
    ASSERT_TRUE(eventually([&] { return hasEnded(first); }));
    input.pressKey(0, 0);
    ASSERT_EQ(guards().size(), 1);
    EXPECT_NE(guards().front(), first);
    EXPECT_TRUE(isButtonDown()) << "what was held goes on";
}

TEST_F(X11WatchdogTest, WithoutItNothingIsLentAndWhatWasLentBeforeComesBack)
{
    const QByteArray before = keyboardMap(server.display());
    QString text; // more than can be lent at a time
    for (char16_t letter = 0x4e00; letter < 0x4e60; ++letter)
        text += letter;
    X11Session session(server.display());
    const auto typing = session.desktop().input().beginTyping(text);
    ASSERT_NE(keyboardMap(server.display()), before);
    ASSERT_EQ(guards().size(), 1);
    const pid_t guard = guards().front();
    ::kill(guard, SIGKILL);
    ASSERT_TRUE(eventually([&] { return hasEnded(guard); }));
    {
        const NoMoreFiles noOther;
        for (const QChar letter : text)
            typing->post(QString(letter));
    }
    EXPECT_EQ(keyboardMap(server.display()), before);
}

TEST_F(X11WatchdogTest, EndsWithTheServer)
{
    start({"hold", "200", "200"});
    ASSERT_EQ(guards().size(), 1);
    server.stop();
    EXPECT_TRUE(eventually([&] { return guards().isEmpty(); }));
}

} // namespace velvane
