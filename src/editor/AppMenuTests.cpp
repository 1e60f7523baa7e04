#include "editor/AppMenu.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct AppMenuTest : testing::Test {
    AppInfo app(const QString &name)
    {
        AppInfo info;
        info.name = name;
        return info;
    }
    QStringList items()
    {
        QStringList texts;
        menu.build();
        for (const QAction *action : menu.menu()->actions())
            if (!action->isSeparator())
                texts << (action->isChecked() ? QStringLiteral("✓ ") : QString()) + action->text();
        return texts;
    }

    SimulatedDesktop desktop;
    AppCatalog catalog{desktop.apps()};
    AppMenu menu{catalog};
};

} // namespace

TEST_F(AppMenuTest, RunningApplicationsComeBeforeTheInstalledOnes)
{
    desktop.apps().run(app("Notes"));
    desktop.apps().install(app("Mail"));
    desktop.apps().install(app("Notes"));
    EXPECT_EQ(items(), QStringList({"Running", "Notes", "Applications", "Mail", "Notes"}));
}

TEST_F(AppMenuTest, WithoutRunningApplicationsTheirSectionIsLeftOut)
{
    desktop.apps().install(app("Mail"));
    EXPECT_EQ(items(), QStringList({"Applications", "Mail"}));
}

TEST_F(AppMenuTest, AHeaderNeverStandsAlone)
{
    desktop.apps().run(app("Notes"));
    EXPECT_EQ(items(), QStringList({"Running", "Notes"}));
}

TEST_F(AppMenuTest, WithoutAnyApplicationsTheMenuSaysSo)
{
    EXPECT_EQ(items(), QStringList({"No applications found"}));
}

TEST_F(AppMenuTest, TheCurrentApplicationHasOneCheck)
{
    desktop.apps().run(app("Notes"));
    desktop.apps().install(app("Mail"));
    desktop.apps().install(app("Notes"));
    menu.setApp("Notes");
    EXPECT_EQ(items(), QStringList({"Running", "✓ Notes", "Applications", "Mail", "Notes"}));
    menu.setApp("Mail");
    EXPECT_EQ(items(), QStringList({"Running", "Notes", "Applications", "✓ Mail", "Notes"}));
    menu.setApp({});
    EXPECT_EQ(items(), QStringList({"Running", "Notes", "Applications", "Mail", "Notes"}));
}

TEST_F(AppMenuTest, WithoutAChoiceItAsksForOneAndHasNoIcon)
{
    menu.setApp({});
    EXPECT_EQ(menu.label(), "Choose app…");
    EXPECT_TRUE(menu.icon().isNull());
}

} // namespace velvane
