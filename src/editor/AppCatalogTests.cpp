#include "editor/AppCatalog.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

AppInfo app(const QString &name, AppPolicy policy = AppPolicy::regular)
{
    AppInfo info;
    info.name = name;
    info.policy = policy;
    return info;
}

QStringList names(const std::vector<AppEntry> &entries)
{
    QStringList found;
    for (const AppEntry &entry : entries)
        found << entry.name;
    return found;
}

QImage filled(Qt::GlobalColor color)
{
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QColor colorOf(const QIcon &icon)
{
    const QImage image = icon.pixmap(16).toImage();
    return image.isNull() ? QColor() : image.pixelColor(3, 3);
}

// Gives each application the colour that its id names.
class Coloured final : public AppControl {
public:
    std::vector<AppInfo> installed() override { return here; }
    std::vector<AppInfo> running() override { return active; }
    QImage icon(const AppInfo &info, qreal) override
    {
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(info.id));
        return image;
    }
    void activate(const AppInfo &) override {}
    void launch(const AppInfo &) override {}
    void hide(const AppInfo &) override {}
    Token watchActivations(std::function<void(const AppInfo &)>) override { return {}; }

    std::vector<AppInfo> here;
    std::vector<AppInfo> active;
};

AppInfo coloured(const QString &name, const QString &colour)
{
    AppInfo info = app(name);
    info.id = colour;
    return info;
}

class AppCatalogTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    AppCatalog catalog{desktop.apps()};
};

} // namespace

using AppCatalogInstalled = AppCatalogTest;
using AppCatalogRunning = AppCatalogTest;
using AppCatalogIcon = AppCatalogTest;

TEST(AppCatalog, AnApplicationInTwoFoldersIsListedOnceWithTheFirstFoldersIcon)
{
    Coloured control;
    control.here = {coloured("Notes", "red"), coloured("Notes", "blue")};
    AppCatalog catalog(control);
    EXPECT_EQ(names(catalog.installed()), QStringList("Notes"));
    EXPECT_EQ(colorOf(catalog.installed().front().icon), QColor("red"));
    EXPECT_EQ(colorOf(catalog.icon("Notes")), QColor("red"));
}

TEST(AppCatalog, TheIconOfARunningApplicationComesBeforeThatOfAnInstalledOne)
{
    Coloured control;
    control.here = {coloured("Notes", "red"), coloured("Mail", "green")};
    control.active = {coloured("Notes", "blue")};
    AppCatalog catalog(control);
    EXPECT_EQ(colorOf(catalog.icon("Notes")), QColor("blue"));
    EXPECT_EQ(colorOf(catalog.icon("Mail")), QColor("green"));
}

TEST_F(AppCatalogInstalled, SortingIgnoresCase)
{
    for (const char *name : {"Zebra", "apple", "Banana", "xterm", "Mail"})
        desktop.apps().install(app(name));
    EXPECT_EQ(names(catalog.installed()),
              QStringList({"apple", "Banana", "Mail", "xterm", "Zebra"}));
}

TEST_F(AppCatalogInstalled, NamesThatCompareEqualKeepTheOrderInWhichTheyWereFound)
{
    for (const char *name : {"notes", "Alpha", "NOTES", "Notes"})
        desktop.apps().install(app(name));
    EXPECT_EQ(names(catalog.installed()), QStringList({"Alpha", "notes", "NOTES", "Notes"}));
}

TEST_F(AppCatalogInstalled, IsReadOnceAndKept)
{
    desktop.apps().install(app("Notes"));
    catalog.installed();
    catalog.icon("Notes");
    desktop.apps().install(app("Mail"));
    EXPECT_EQ(names(catalog.installed()), QStringList("Notes"));
    EXPECT_EQ(desktop.apps().installedReads(), 1);
}

TEST_F(AppCatalogInstalled, IsNotReadBeforeItIsNeeded)
{
    catalog.running();
    EXPECT_EQ(desktop.apps().installedReads(), 0);
}

TEST_F(AppCatalogInstalled, AnApplicationWithoutANameIsNotOffered)
{
    desktop.apps().install(app(""));
    EXPECT_TRUE(catalog.installed().empty());
}

TEST_F(AppCatalogRunning, ABackgroundAgentIsNotOffered)
{
    desktop.apps().run(app("Clock agent", AppPolicy::accessory));
    desktop.apps().run(app("Notes"));
    EXPECT_EQ(names(catalog.running()), QStringList("Notes"));
}

TEST_F(AppCatalogRunning, IsFreshEveryTime)
{
    desktop.apps().run(app("Notes"));
    EXPECT_EQ(catalog.running().size(), 1U);
    desktop.apps().run(app("Mail"));
    EXPECT_EQ(names(catalog.running()), QStringList({"Mail", "Notes"}));
    desktop.apps().quit("Notes");
    EXPECT_EQ(names(catalog.running()), QStringList("Mail"));
}

TEST_F(AppCatalogRunning, SkipsNamelessApplicationsAndSecondInstances)
{
    desktop.apps().run(app(""));
    desktop.apps().run(app("xterm"));
    desktop.apps().run(app("Xfce"));
    desktop.apps().run(app("xterm"));
    EXPECT_EQ(names(catalog.running()), QStringList({"Xfce", "xterm"}));
}

TEST_F(AppCatalogRunning, AnAgentDoesNotTakeTheNameOfAnOrdinaryApplication)
{
    desktop.apps().run(app("Notes", AppPolicy::accessory));
    desktop.apps().run(app("Notes"));
    EXPECT_EQ(names(catalog.running()), QStringList("Notes"));
}

TEST_F(AppCatalogIcon, NeedsTheExactName)
{
    desktop.apps().install(app("Notes"));
    desktop.apps().setIcon("Notes", filled(Qt::green));
    EXPECT_TRUE(catalog.icon("notes").isNull());
    EXPECT_TRUE(catalog.icon("Notes ").isNull());
    EXPECT_TRUE(catalog.icon("Note").isNull());
}

TEST_F(AppCatalogIcon, OfAnEmptyOrUnknownNameIsNone)
{
    desktop.apps().run(app(""));
    desktop.apps().setIcon("", filled(Qt::red));
    EXPECT_TRUE(catalog.icon("").isNull());
    EXPECT_TRUE(catalog.icon("Nobody").isNull());
}

TEST_F(AppCatalogIcon, IsFoundByTheNameInTheUsersLanguageToo)
{
    AppInfo notes = app("Notes");
    notes.localizedName = "Notizen";
    desktop.apps().install(notes);
    desktop.apps().install(app("Mail"));
    desktop.apps().setIcon("Notes", filled(Qt::yellow));
    EXPECT_EQ(colorOf(catalog.icon("Notizen")), QColor(Qt::yellow));
}

TEST_F(AppCatalogIcon, AnotherApplicationsLocalNameNeverHidesAnExactOne)
{
    AppInfo foreign = app("Editor");
    foreign.localizedName = "Notes";
    desktop.apps().run(foreign);
    desktop.apps().install(app("Notes"));
    desktop.apps().setIcon("Editor", filled(Qt::red));
    desktop.apps().setIcon("Notes", filled(Qt::green));
    EXPECT_EQ(colorOf(catalog.icon("Notes")), QColor(Qt::green));
}

TEST_F(AppCatalogIcon, IsSixteenPointsAtEitherScale)
{
    desktop.apps().install(app("Notes"));
    desktop.apps().setIcon("Notes", filled(Qt::green));
    const QIcon icon = catalog.icon("Notes");
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 1).toImage().size(), QSize(16, 16));
    const QPixmap large = icon.pixmap(QSize(16, 16), 2);
    EXPECT_EQ(large.toImage().size(), QSize(32, 32));
    EXPECT_EQ(large.devicePixelRatio(), 2);
}

TEST_F(AppCatalogIcon, OfAnApplicationWithoutOneIsNone)
{
    desktop.apps().install(app("Notes"));
    EXPECT_TRUE(catalog.installed().front().icon.isNull());
}

} // namespace velvane
