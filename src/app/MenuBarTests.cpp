#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "app/WindowCommands.h"
#include "editor/ContentView.h"
#include "model/ProjectFile.h"
#include "model/StepList.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/MenuReader.h"

#include <QEventLoop>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

namespace velvane {

namespace {

struct MenuBarTest : testing::Test {
    MenuBarTest()
    {
        documents.recents().setPictureFolder(folder.filePath("pictures"));
        window = documents.newDemo();
    }

    QMenu &menu(const QString &title) const
    {
        for (const QAction *action : window->menuBar()->actions())
            if (QString(action->text()).remove('&') == title)
                return *action->menu();
        ADD_FAILURE() << title.toStdString();
        static QMenu missing;
        return missing;
    }
    QAction &item(const QString &title, const QString &text) const
    {
        return MenuReader(menu(title)).item(text);
    }
    QString shown() const
    {
        const auto *box = window->findChild<QMessageBox *>();
        return box ? box->text() : QString();
    }

    QTemporaryDir folder;
    SimulatedDesktop desktop;
    QSettings settings{folder.filePath("settings.ini"), QSettings::IniFormat};
    Documents documents{desktop, settings};
    QPointer<EditorWindow> window;
};

} // namespace

TEST_F(MenuBarTest, HasTheMenusInOrder)
{
    QStringList titles;
    for (const QAction *action : window->menuBar()->actions())
        titles << QString(action->text()).remove('&');
    EXPECT_EQ(titles, (QStringList{"File", "Edit", "View", "Demo", "Step", "Window", "Help"}));
}

TEST_F(MenuBarTest, TheFileMenuHasItsItemsAndKeys)
{
    const MenuReader file(menu("File"));
    EXPECT_EQ(file.texts(), (QStringList{"New", "Open…", "Open Recent", "-", "Close", "Save",
                                         "Save As…", "-", "Export to Video…", "-", "Quit"}));
    QStringList keys;
    for (const QAction *action : menu("File").actions())
        if (!action->shortcut().isEmpty())
            keys << action->shortcut().toString(QKeySequence::PortableText);
    EXPECT_EQ(keys, (QStringList{"Ctrl+N", "Ctrl+O", "Ctrl+W", "Ctrl+S", "Ctrl+Shift+S", "Ctrl+E",
                                 "Ctrl+Q"}));
}

TEST_F(MenuBarTest, NoTwoItemsShareAKey)
{
    QStringList keys;
    for (const QAction *top : window->menuBar()->actions())
        for (const QAction *action : MenuReader(*top->menu()).all())
            for (const QKeySequence &key : action->shortcuts())
                keys << key.toString();
    QStringList once = keys;
    once.removeDuplicates();
    EXPECT_EQ(keys, once);
}

TEST_F(MenuBarTest, NewOpensAnotherWindow)
{
    item("File", "New").trigger();
    EXPECT_EQ(documents.windows().size(), 2);
}

TEST_F(MenuBarTest, CloseClosesAnUnmodifiedWindow)
{
    item("File", "Close").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);
}

TEST_F(MenuBarTest, OpenRecentIsDisabledWithoutRecentDemos)
{
    EXPECT_FALSE(item("File", "Open Recent").isEnabled());
}

TEST_F(MenuBarTest, OpenRecentListsAndOpensWhatWasUsed)
{
    const QString path = folder.filePath("This & that.velvane");
    ASSERT_FALSE(DemoDocument::write(DemoDocument().snapshot(), path));
    documents.recents().add(path, window->content().project().snapshot());
    QAction &recent = item("File", "Open Recent");
    EXPECT_TRUE(recent.isEnabled());
    Q_EMIT recent.menu()->aboutToShow();
    const MenuReader list(*recent.menu());
    ASSERT_EQ(list.texts().size(), 3);
    EXPECT_TRUE(list.texts().constFirst().startsWith("This && that — "));
    EXPECT_EQ(list.texts().constLast(), "Clear Menu");
    list.all().constFirst()->trigger();
    EXPECT_TRUE(documents.windowFor(path));
}

TEST_F(MenuBarTest, ClearMenuForgetsTheRecentDemos)
{
    const QString path = folder.filePath("a.velvane");
    ASSERT_FALSE(DemoDocument::write(DemoDocument().snapshot(), path));
    documents.recents().add(path, window->content().project().snapshot());
    QMenu *recent = item("File", "Open Recent").menu();
    Q_EMIT recent->aboutToShow();
    MenuReader(*recent).item("Clear Menu").trigger();
    EXPECT_TRUE(documents.recents().demos().isEmpty());
    EXPECT_FALSE(item("File", "Open Recent").isEnabled());
}

TEST_F(MenuBarTest, TheMenusActOnTheirOwnWindow)
{
    EditorWindow *other = documents.newDemo();
    item("Step", "Section").trigger();
    EXPECT_EQ(window->content().project().steps().size(), 2);
    EXPECT_EQ(other->content().project().steps().size(), 1);
    EXPECT_EQ(item("Edit", "Undo Add Section").isEnabled(), true);
    item("Edit", "Undo Add Section").trigger();
    EXPECT_EQ(window->content().project().steps().size(), 1);
}

TEST_F(MenuBarTest, TheWindowMenuListsAllWindowsAndChecksItsOwn)
{
    documents.newDemo();
    QMenu &list = menu("Window");
    WindowCommands::fill(list, *window);
    EXPECT_EQ(MenuReader(list).texts(), (QStringList{"Minimize", "-", "Untitled", "Untitled 2"}));
    EXPECT_TRUE(item("Window", "Untitled").isChecked());
    EXPECT_FALSE(item("Window", "Untitled 2").isChecked());
}

TEST_F(MenuBarTest, TheHelpMenuHasItsItems)
{
    EXPECT_EQ(MenuReader(menu("Help")).texts(),
              (QStringList{"Velvane Help", "-", "About Velvane", "Check for Updates…"}));
    EXPECT_EQ(item("Help", "Velvane Help").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Question));
}

TEST_F(MenuBarTest, CheckForUpdatesSaysThatNoFeedIsConfigured)
{
    item("Help", "Check for Updates…").trigger();
    EXPECT_EQ(shown(), "No update feed is configured, so Velvane cannot check for updates.");
}

TEST_F(MenuBarTest, AboutNamesTheVersion)
{
    item("Help", "About Velvane").trigger();
    EXPECT_EQ(shown(), QStringLiteral("Velvane %1").arg(QLatin1String(VELVANE_VERSION)));
}

TEST_F(MenuBarTest, TheWindowMenuBringsUpAWindowAsLargeAsItWas)
{
    EditorWindow *other = documents.newDemo();
    other->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    WindowCommands::fill(menu("Window"), *window);
    item("Window", "Untitled 2").trigger();
    EXPECT_EQ(other->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized),
              Qt::WindowMaximized);
}

TEST_F(MenuBarTest, RecentDemosTellTheirWholePath)
{
    auto *recent = menu("File").findChild<QMenu *>();
    ASSERT_TRUE(recent);
    EXPECT_TRUE(recent->toolTipsVisible());
}

} // namespace velvane
