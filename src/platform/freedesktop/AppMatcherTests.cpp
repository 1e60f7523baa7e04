#include "platform/freedesktop/AppMatcher.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

DesktopEntry entry(const QString &id, const QString &exec = {}, const QString &wmClass = {})
{
    DesktopEntry made;
    made.id = id;
    made.name = id;
    made.exec = exec;
    made.startupWmClass = wmClass;
    return made;
}

DesktopEntry undisplayed(DesktopEntry made)
{
    made.noDisplay = true;
    return made;
}

QString match(DesktopEntries::List entries, const WindowIdentity &window)
{
    const AppMatcher matcher(std::make_shared<const DesktopEntries::List>(std::move(entries)));
    const DesktopEntry *found = matcher.match(window);
    return found ? found->id : "none";
}

WindowIdentity windowOf(const QString &wmClass, const QString &instance = {})
{
    WindowIdentity window;
    window.wmClass = wmClass;
    window.wmInstance = instance;
    return window;
}

} // namespace

TEST(AppMatcher, TheApplicationIdCountsMost)
{
    WindowIdentity window = windowOf("Editor");
    window.applicationId = "org.example.Notes";
    EXPECT_EQ(match({entry("editor"), entry("org.example.Notes")}, window), "org.example.Notes");
}

TEST(AppMatcher, AnEntryMayNameItsWindowsClass)
{
    EXPECT_EQ(match({entry("debian-xterm", "xterm", "XTerm"), entry("other")}, windowOf("XTerm")),
              "debian-xterm");
}

TEST(AppMatcher, AnIdOrItsLastPartMatchesTheClassWithoutRegardToCase)
{
    EXPECT_EQ(match({entry("mousepad")}, windowOf("Mousepad")), "mousepad");
    EXPECT_EQ(match({entry("org.xfce.mousepad")}, windowOf("Mousepad")), "org.xfce.mousepad");
}

TEST(AppMatcher, TheInstanceHelpsWhereTheClassDoesNot)
{
    EXPECT_EQ(match({entry("mail")}, windowOf("Toolkit", "mail")), "mail");
}

TEST(AppMatcher, TheClassComesBeforeTheInstance)
{
    EXPECT_EQ(match({entry("mail"), entry("calendar")}, windowOf("calendar", "mail")), "calendar");
}

TEST(AppMatcher, TheProgramIsTheLastResort)
{
    WindowIdentity window = windowOf("Gimp-2.10");
    window.program = "gimp-2.10";
    EXPECT_EQ(match({entry("gimp", "gimp-2.10 %U")}, window), "gimp");
}

TEST(AppMatcher, AnInterpretedScriptComesBeforeItsInterpreter)
{
    WindowIdentity window = windowOf("Unknown");
    window.program = "python3.11";
    window.script = "tweaks";
    EXPECT_EQ(
        match({entry("python", "/usr/bin/python3.11"), entry("tweak-tool", "tweaks")}, window),
        "tweak-tool");
}

TEST(AppMatcher, OfSeveralADisplayedOneCounts)
{
    EXPECT_EQ(match({undisplayed(entry("a", {}, "Notes")), entry("b", {}, "Notes"),
                     entry("c", {}, "Notes")},
                    windowOf("Notes")),
              "b");
}

TEST(AppMatcher, AnUndisplayedOneStillNamesItsOwnWindow)
{
    EXPECT_EQ(match({undisplayed(entry("helper"))}, windowOf("Helper")), "helper");
}

TEST(AppMatcher, AnUndisplayedOneIsNotFoundByItsProgram)
{
    WindowIdentity window = windowOf("Mine");
    window.program = "python3.11";
    EXPECT_EQ(match({undisplayed(entry("python", "python3.11"))}, window), "none");
}

TEST(AppMatcher, AWindowThatTellsNothingMatchesNothing)
{
    EXPECT_EQ(match({entry(""), entry("a")}, {}), "none");
}

} // namespace velvane
