#include "live/Applications.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

AppInfo app(const QString &name, const QString &localizedName = {})
{
    AppInfo info;
    info.name = name;
    info.localizedName = localizedName;
    return info;
}

class LiveApplications : public testing::Test {
protected:
    void runOurs()
    {
        AppInfo ours = app("Velvane");
        ours.ours = true;
        desktop.apps().run(ours);
    }
    quint64 open(const QString &name, const QRectF &frame, bool main = false)
    {
        WindowInfo window;
        window.owner = app(name);
        window.frame = frame;
        window.main = main;
        return desktop.windows().add(window);
    }

    SimulatedDesktop desktop;
};

} // namespace

TEST_F(LiveApplications, APaddedNameInSmallLettersActivatesTheRunningApplication)
{
    desktop.apps().run(app("Mail"));
    desktop.apps().run(app("Notes"));
    Live::activate(desktop, "\t notes ");
    EXPECT_EQ(desktop.log(), QStringList("activate Notes"));
}

TEST_F(LiveApplications, TheFirstOfSeveralWithOneNameIsActivated)
{
    AppInfo other = app("notes");
    other.localizedName = "NOTES";
    desktop.apps().run(app("Notes"));
    desktop.apps().run(other);
    Live::activate(desktop, "NOTES");
    EXPECT_EQ(desktop.log(), QStringList("activate Notes"));
}

TEST_F(LiveApplications, TheNameInTheUsersLanguageCountsToo)
{
    desktop.apps().run(app("Files", "Dateien"));
    Live::activate(desktop, "dateien");
    EXPECT_EQ(desktop.log(), QStringList("activate Files"));
}

TEST_F(LiveApplications, WhatDoesNotRunIsLaunchedFromTheFirstFolder)
{
    AppInfo first = app("Notes");
    first.id = "first";
    desktop.apps().install(first);
    desktop.apps().install(app("Notes"));
    Live::activate(desktop, " Notes");
    EXPECT_EQ(desktop.log(), QStringList("launch Notes"));
    ASSERT_EQ(desktop.apps().running().size(), 1U);
    EXPECT_EQ(desktop.apps().running()[0].id, "first");
}

TEST_F(LiveApplications, NamesThatNobodyHasDoNothing)
{
    desktop.apps().run(app(QString()));
    desktop.apps().install(app(QString()));
    desktop.apps().run(app("Notes"));
    for (const char *name : {"", " ", " \t\t ", "Not", "No\"te's", "../Notes", "Notes\n", "%s\x01"})
        Live::activate(desktop, name);
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(LiveApplications, ANameWithQuotesAndSlashesIsFoundAsItIs)
{
    desktop.apps().run(app("A/B \"C\" 'd'"));
    Live::activate(desktop, "a/b \"c\" 'D'");
    EXPECT_EQ(desktop.log(), QStringList("activate A/B \"C\" 'd'"));
}

TEST_F(LiveApplications, WeAreActivatedAsOurselves)
{
    runOurs();
    Live::activate(desktop, "velvane");
    EXPECT_EQ(desktop.log(), QStringList("activate ourselves"));
}

TEST_F(LiveApplications, TheMainWindowIsCentredInTheVisibleArea)
{
    desktop.apps().run(app("Notes"));
    open("Mail", {0, 0, 10, 10});
    open("Notes", {5, 5, 100, 100});
    const quint64 main = open("Notes", {0, 0, 921, 600}, true);
    Live::centerWindow(desktop, "NOTES");
    EXPECT_EQ(desktop.log(), QStringList(QString("moveWindow %1 499.5,256").arg(main)));
}

TEST_F(LiveApplications, WithoutAMainWindowTheFrontmostOneIsCentred)
{
    desktop.apps().run(app("Notes"));
    const quint64 front = open("Notes", {5, 5, 100, 48});
    open("Notes", {0, 0, 920, 600});
    Live::centerWindow(desktop, "Notes");
    EXPECT_EQ(desktop.log(), QStringList(QString("moveWindow %1 910,532").arg(front)));
}

TEST_F(LiveApplications, AWindowLargerThanTheDisplayIsCentredAllTheSame)
{
    desktop.apps().run(app("Notes"));
    const quint64 window = open("Notes", {0, 0, 2000, 1100});
    Live::centerWindow(desktop, "Notes");
    EXPECT_EQ(desktop.log(), QStringList(QString("moveWindow %1 -40,6").arg(window)));
}

TEST_F(LiveApplications, ItIsCentredOnTheDisplayWithTheKeyboard)
{
    Display left;
    left.frame = QRectF(-1280, 0, 1280, 1024);
    left.visible = left.frame;
    desktop.screens().setDisplays({desktop.screens().displays().front(), left});
    desktop.screens().setMain(1);
    desktop.apps().run(app("Notes"));
    const quint64 window = open("Notes", {0, 0, 280, 24});
    Live::centerWindow(desktop, "Notes");
    EXPECT_EQ(desktop.log(), QStringList(QString("moveWindow %1 -780,500").arg(window)));
}

TEST_F(LiveApplications, NothingIsCentredWithoutApplicationWindowOrDisplay)
{
    Live::centerWindow(desktop, "Notes");
    desktop.apps().run(app("Notes"));
    Live::centerWindow(desktop, "Notes");
    open("Notes", {5, 5, 100, 48});
    desktop.screens().setDisplays({});
    Live::centerWindow(desktop, "Notes");
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(LiveApplications, HidingOthersKeepsTheNamedAndTheAccessoriesAndHidesUsLast)
{
    AppInfo panel = app("Panel");
    panel.policy = AppPolicy::accessory;
    runOurs();
    desktop.apps().run(app("Mail"));
    desktop.apps().run(panel);
    desktop.apps().run(app("Notes"));
    desktop.apps().run(app(QString()));
    Live::hideOtherApps(desktop, " notes\t");
    EXPECT_EQ(desktop.log(), QStringList({"hide Mail", "hide ", "hide ourselves"}));
}

TEST_F(LiveApplications, ANameThatMatchesNothingHidesAll)
{
    desktop.apps().run(app("Mail"));
    desktop.apps().run(app(QString()));
    Live::hideOtherApps(desktop, "");
    EXPECT_EQ(desktop.log(), QStringList({"hide Mail", "hide ", "hide ourselves"}));
}

TEST_F(LiveApplications, HidingOthersHidesUsEvenWhenWeAreNamed)
{
    runOurs();
    Live::hideOtherApps(desktop, "Velvane");
    EXPECT_EQ(desktop.log(), QStringList("hide ourselves"));
}

TEST_F(LiveApplications, ThePickedApplicationEndsUpRightBehindUs)
{
    desktop.apps().run(app("Notes"));
    runToEnd(Live::raiseBehindUs(desktop, "notes"));
    EXPECT_EQ(desktop.log(), QStringList({"activate Notes", "activate ourselves"}));
    EXPECT_DOUBLE_EQ(desktop.clock().now().count(), 0.12);
}

TEST_F(LiveApplications, WhatDoesNotRunIsNotRaisedBehindUs)
{
    desktop.apps().install(app("Notes"));
    runToEnd(Live::raiseBehindUs(desktop, "Notes"));
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(LiveApplications, TheSettingsAreThoseOfTheLiveRunsPermission)
{
    Live::openAccessibilitySettings(desktop);
    EXPECT_EQ(desktop.log(),
              QStringList("open x-apple.systempreferences:com.apple.preference.security"
                          "?Privacy_Accessibility"));
}

} // namespace velvane
