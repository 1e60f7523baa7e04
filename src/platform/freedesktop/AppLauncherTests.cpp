#include "platform/freedesktop/AppLauncher.h"

#include "support/Print.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

namespace velvane {

namespace {

std::function<QString(const QString &)> having(const QStringList &programs)
{
    return [programs](const QString &name) {
        return programs.contains(name) ? "/usr/bin/" + name : QString();
    };
}

} // namespace

TEST(AppLauncher, TheTerminalIsTheOneThatWasChosenElseOneThatIsKnown)
{
    const QStringList command{"top", "a b"};
    EXPECT_EQ(AppLauncher::inTerminal(command, having({"xterm", "xdg-terminal-exec"})),
              QStringList({"/usr/bin/xdg-terminal-exec", "top", "a b"}));
    EXPECT_EQ(AppLauncher::inTerminal(command, having({"xterm", "gnome-terminal"})),
              QStringList({"/usr/bin/gnome-terminal", "--", "top", "a b"}));
    EXPECT_EQ(AppLauncher::inTerminal(command, having({"xterm"})),
              QStringList({"/usr/bin/xterm", "-e", "top", "a b"}));
}

TEST(AppLauncher, WithoutATerminalTheCommandStartsAlone)
{
    EXPECT_EQ(AppLauncher::inTerminal({"top"}, having({})), QStringList("top"));
}

TEST(AppLauncher, NoPartOfACommandPassesThroughAShell)
{
    const QTemporaryDir folder;
    DesktopEntry entry;
    entry.folder = folder.path();
    // Quoted as the entry format wants it; a shell would obey each of them.
    entry.exec =
        R"exec(touch "made; touch trap" "\$(touch trap)" "\`touch trap\`" "| touch trap")exec";

    AppLauncher(QProcessEnvironment::systemEnvironment()).launch(entry);

    const QString last = folder.filePath("| touch trap");
    QElapsedTimer waited;
    waited.start();
    constexpr qint64 longEnough = 20'000; // milliseconds
    while (!QFile::exists(last) && waited.elapsed() < longEnough)
        QThread::msleep(5);
    EXPECT_TRUE(QFile::exists(last)) << "the program has not run";
    EXPECT_TRUE(QFile::exists(folder.filePath("made; touch trap")));
    EXPECT_TRUE(QFile::exists(folder.filePath("$(touch trap)")));
    EXPECT_FALSE(QFile::exists(folder.filePath("trap")));
}

} // namespace velvane
