#include "app/AppDelegate.h"

#include "app/Autosave.h"
#include "app/DocumentsFixture.h"
#include "app/RecentDemoDelegate.h"
#include "app/StartWindow.h"
#include "editor/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QToolButton>

namespace velvane {

namespace {

/// Is every whole pixel of this colour, and is there one?
bool allOf(const QImage &drawing, const QColor &color)
{
    int whole = 0;
    for (int y = 0; y < drawing.height(); ++y)
        for (int x = 0; x < drawing.width(); ++x)
            if (const QColor pixel = drawing.pixelColor(x, y); pixel.alpha() == 255) {
                ++whole;
                if (pixel != color)
                    return false;
            }
    return whole > 0;
}

struct AppDelegateTest : DocumentsFixture {
    AppDelegateTest()
    {
        QObject::connect(&delegate, &AppDelegate::terminated, &delegate, [this] { ++ends; });
    }
    StartWindow &start() { return delegate.startWindow(); }
    QListView &recents() { return *start().findChild<QListView *>(); }
    QPushButton *button(const QString &text)
    {
        for (QPushButton *button : start().findChildren<QPushButton *>())
            if (button->text() == text)
                return button;
        return nullptr;
    }
    void closeAll()
    {
        const auto windows = documents.windows();
        for (EditorWindow *window : windows)
            window->close();
        settle();
    }

    Autosave autosave{documents, file("kept")};
    AppDelegate delegate{documents, autosave};
    int ends = 0;
};

} // namespace

TEST_F(AppDelegateTest, TheStartWindowComesAfterTheLastDemoCloses)
{
    documents.newDemo();
    documents.newDemo();
    EXPECT_FALSE(start().isVisible());
    closeAll();
    EXPECT_TRUE(start().isVisible());
    EXPECT_EQ(ends, 0);
}

TEST_F(AppDelegateTest, ScreenReadersCallTheStartWindowAWindow)
{
    const auto *told = QAccessible::queryAccessibleInterface(&start());
    ASSERT_TRUE(told);
    EXPECT_EQ(told->role(), QAccessible::Window);
    EXPECT_EQ(told->text(QAccessible::Name), "Velvane");
}

TEST_F(AppDelegateTest, FilePanelsHaveTheWindowsOwnSymbols)
{
    button("Open…")->click();
    const auto *panel = start().findChild<QFileDialog *>();
    ASSERT_TRUE(panel);
    for (const char *name : {"backButton", "forwardButton", "toParentButton", "newFolderButton",
                             "listModeButton", "detailModeButton"}) {
        const auto *tool = panel->findChild<QToolButton *>(name);
        ASSERT_TRUE(tool) << name;
        const QImage drawn = tool->icon().pixmap(18).toImage();
        EXPECT_EQ(drawn.pixelColor(0, 0).alpha(), 0) << name;
        EXPECT_TRUE(allOf(drawn, Theme::instance().colors().text)) << name;
    }
}

TEST_F(AppDelegateTest, ClosingTheStartWindowEndsTheProgram)
{
    documents.newDemo();
    closeAll();
    start().close();
    EXPECT_EQ(ends, 1);
}

TEST_F(AppDelegateTest, QuittingEndsTheProgramWithoutTheStartWindow)
{
    documents.newDemo();
    documents.quit();
    settle();
    EXPECT_FALSE(start().isVisible());
    EXPECT_EQ(ends, 1);
}

TEST_F(AppDelegateTest, TheSessionMayEndWhileNothingIsLost)
{
    documents.newDemo();
    EXPECT_TRUE(delegate.sessionMayEnd());
    settle();
    EXPECT_EQ(ends, 0);
}

TEST_F(AppDelegateTest, TheSessionMayEndWhenModifiedDemosAreKept)
{
    EditorWindow *window = documents.newDemo();
    edit(window);
    EXPECT_TRUE(delegate.sessionMayEnd());
    EXPECT_FALSE(question(window));
    EXPECT_TRUE(autosave.hasEnded());
}

TEST_F(AppDelegateTest, TheProgramEndsUnaskedWithItsDemosKept)
{
    edit(documents.newDemo());
    documents.open(demo("a.velvane"), nullptr);
    delegate.end();
    settle();
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(start().isVisible());
}

TEST_F(AppDelegateTest, TheSessionManagersLastWordEndsTheProgramUnasked)
{
    edit(documents.newDemo());
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    settle();
    EXPECT_TRUE(autosave.hasEnded());
    EXPECT_EQ(ends, 1);
}

TEST_F(AppDelegateTest, ComingForwardWithoutAWindowMakesADemo)
{
    delegate.comeForward();
    EXPECT_EQ(documents.windows().size(), 1);
    delegate.comeForward();
    EXPECT_EQ(documents.windows().size(), 1);
}

TEST_F(AppDelegateTest, DemosOfOtherProgramsOpenOnceEach)
{
    delegate.open({demo("a.velvane"), demo("b.velvane")});
    delegate.open({file("a.velvane")});
    EXPECT_EQ(documents.windows().size(), 2);
}

TEST_F(AppDelegateTest, WhatAnotherProgramCannotOpenLeavesTheStartWindow)
{
    delegate.open({file("missing.velvane")});
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_TRUE(start().isVisible());
    for (QWidget *box : QApplication::topLevelWidgets())
        if (qobject_cast<QMessageBox *>(box))
            box->close();
    settle();
}

TEST_F(AppDelegateTest, TheSessionWaitsForTheAnswersAboutDemosThatCannotBeKept)
{
    QFile(file("kept")).open(QIODevice::WriteOnly);
    EditorWindow *window = documents.newDemo();
    edit(window);
    EXPECT_FALSE(delegate.sessionMayEnd());
    answer(window, "Don't Save");
    EXPECT_EQ(ends, 1);
}

TEST_F(AppDelegateTest, TheEndOfTheSessionCancelsExportsAndEndsTheProgram)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "a.mp4");
    EXPECT_TRUE(delegate.sessionMayEnd());
    waitFor(window);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(start().isVisible());
}

TEST_F(AppDelegateTest, NewInTheStartWindowOpensADemoAndHidesIt)
{
    start().show();
    button("New")->click();
    EXPECT_EQ(documents.windows().size(), 1);
    EXPECT_FALSE(start().isVisible());
    EXPECT_EQ(ends, 0);
}

TEST_F(AppDelegateTest, OpenInTheStartWindowAsksForAFile)
{
    start().show();
    button("Open…")->click();
    auto *panel = start().findChild<QFileDialog *>();
    ASSERT_TRUE(panel);
    Q_EMIT panel->filesSelected({demo("a.velvane")});
    settle();
    EXPECT_EQ(documents.windows().size(), 1);
}

TEST_F(AppDelegateTest, TheStartWindowListsTheRecentDemosAndOpensThem)
{
    documents.open(demo("a.velvane"), nullptr);
    documents.open(demo("b.velvane"), nullptr);
    closeAll();
    ASSERT_EQ(recents().model()->rowCount(), 2);
    const QModelIndex second = recents().model()->index(1, 0);
    EXPECT_EQ(second.data().toString(), "a");
    Q_EMIT recents().activated(second);
    ASSERT_EQ(documents.windows().size(), 1);
    EXPECT_EQ(documents.windows().first()->path(), file("a.velvane"));
}

TEST_F(AppDelegateTest, ARecentDemoThatHasGoneIsRefusedOverTheStartWindow)
{
    documents.open(demo("a.velvane"), nullptr);
    closeAll();
    QFile::remove(file("a.velvane"));
    Q_EMIT recents().activated(recents().model()->index(0, 0));
    EXPECT_EQ(questionText(&start()), "“a.velvane” cannot be opened: no such file.");
}

TEST_F(AppDelegateTest, WithoutRecentDemosTheStartWindowSaysWhatBelongsThere)
{
    start().show();
    EXPECT_FALSE(recents().isVisible());
    bool said = false;
    for (const QLabel *label : start().findChildren<QLabel *>())
        said |= label->isVisible() && label->text() == "Demos that you open or save appear here.";
    EXPECT_TRUE(said);
}

TEST_F(AppDelegateTest, ADemoDroppedOnTheStartWindowOpens)
{
    start().show();
    EXPECT_TRUE(drop(&start(), demo("dropped.velvane")));
    EXPECT_EQ(documents.windows().size(), 1);
}

TEST_F(AppDelegateTest, TheStartWindowsControlsHaveNamesAndHelp)
{
    for (const QString &text : QStringList{"New", "Open…"}) {
        ASSERT_TRUE(button(text));
        EXPECT_FALSE(button(text)->toolTip().isEmpty());
    }
    EXPECT_EQ(recents().accessibleName(), "Recent demos");
    EXPECT_FALSE(recents().toolTip().isEmpty());
}

} // namespace velvane
