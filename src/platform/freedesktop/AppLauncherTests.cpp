#include "platform/freedesktop/AppLauncher.h"

#include "support/Print.h"

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

} // namespace velvane
