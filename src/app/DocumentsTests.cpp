#include "app/DocumentsFixture.h"
#include "app/Question.h"
#include "support/Until.h"

#include <QPixmapCache>

namespace velvane {

namespace {

struct DocumentsTest : DocumentsFixture {
    DocumentsTest()
    {
        QObject::connect(&documents, &Documents::quitReady, &documents, [this] { ++quits; });
        QObject::connect(&documents, &Documents::lastWindowClosed, &documents, [this] { ++lasts; });
    }
    /// So many windows on files of one step, each with an edit that is not saved.
    QList<EditorWindow *> modified(int count)
    {
        QList<EditorWindow *> windows;
        for (int i = 0; i < count; ++i) {
            windows.append(documents.open(demo(QString::number(i) + ".velvane"), nullptr));
            edit(windows.constLast());
        }
        return windows;
    }

    int quits = 0;
    int lasts = 0;
};

} // namespace

TEST_F(DocumentsTest, NewDemosAreNumbered)
{
    EXPECT_EQ(documents.newDemo()->name(), "Untitled");
    EditorWindow *second = documents.newDemo();
    EXPECT_EQ(second->name(), "Untitled 2");
    EXPECT_EQ(second->windowTitle(), "Untitled 2[*]");
}

TEST_F(DocumentsTest, TheNumberOfAClosedNewDemoIsUsedAgain)
{
    EditorWindow *first = documents.newDemo();
    documents.newDemo();
    first->close();
    settle();
    EXPECT_EQ(documents.newDemo()->name(), "Untitled");
}

TEST_F(DocumentsTest, TheDesktopHearsOfOpenedAndSavedDemos)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    const QString note = "note recent " + file("a.velvane") + " as application/vnd.orvikel.velvane";
    EXPECT_EQ(desktop.log().filter(note).size(), 1);
    edit(window);
    window->save();
    EXPECT_EQ(desktop.log().filter(note).size(), 2);
}

TEST_F(DocumentsTest, TheDesktopForgetsRecentDemosWhenTheyAreCleared)
{
    documents.open(demo("a.velvane"), nullptr);
    EXPECT_EQ(desktop.log().filter("forget recent").size(), 0);
    documents.recents().clear();
    EXPECT_EQ(desktop.log().filter("forget recent").size(), 1);
}

TEST_F(DocumentsTest, PicturesAreKeptUntilTheLastDemoIsClosed)
{
    const QString key = "a picture";
    EditorWindow *first = documents.newDemo();
    EditorWindow *last = documents.newDemo();
    QPixmapCache::insert(key, QPixmap(8, 8));
    first->close();
    settle();
    EXPECT_TRUE(QPixmapCache::find(key, nullptr));
    last->close();
    settle();
    EXPECT_FALSE(QPixmapCache::find(key, nullptr));
}

TEST_F(DocumentsTest, PicturesAreKeptWhenAnotherDemoOpensAtOnce)
{
    const QString key = "a picture";
    EditorWindow *window = documents.newDemo();
    QObject::connect(&documents, &Documents::lastWindowClosed, &documents,
                     [this] { documents.newDemo(); });
    QPixmapCache::insert(key, QPixmap(8, 8));
    window->close();
    settle();
    EXPECT_EQ(documents.windows().size(), 1);
    EXPECT_TRUE(QPixmapCache::find(key, nullptr));
}

TEST_F(DocumentsTest, APictureThatCannotBeReadIsToldOf)
{
    EditorWindow *whole = documents.open(demo("a.velvane"), nullptr);
    EXPECT_EQ(status(whole), "");
    ProjectFile broken = DemoDocument().snapshot();
    broken.background = QByteArray("no picture");
    ASSERT_FALSE(DemoDocument::write(broken, file("b.velvane")));
    EditorWindow *window = documents.open(file("b.velvane"), nullptr);
    EXPECT_EQ(status(window), "The demo's picture cannot be read; saving leaves it out.");
    EXPECT_FALSE(window->isModified());
}

TEST_F(DocumentsTest, AFileIsOpenInOneWindowOnly)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    ASSERT_TRUE(QFile::link(file("a.velvane"), file("link.velvane")));
    EXPECT_EQ(documents.open(file("a.velvane"), nullptr), window);
    EXPECT_EQ(documents.open(folder.path() + "/./a.velvane", nullptr), window);
    EXPECT_EQ(documents.open(file("link.velvane"), nullptr), window);
    EXPECT_EQ(documents.windows().size(), 1);
}

TEST_F(DocumentsTest, AFileOpenElsewhereIsNotSavedOver)
{
    documents.open(demo("a.velvane", 3), nullptr);
    EditorWindow *other = documents.newDemo();
    other->saveAs();
    Q_EMIT other->findChild<QFileDialog *>()->fileSelected(file("a.velvane"));
    settle();
    EXPECT_EQ(questionText(other), "“a.velvane” is open in another window.");
    EXPECT_EQ(stepsIn(file("a.velvane")), 3);
    EXPECT_EQ(other->path(), QString());
}

TEST_F(DocumentsTest, WhatIsNoDemoIsRefusedWithItsReason)
{
    EditorWindow *window = documents.newDemo();
    EXPECT_FALSE(documents.open(file("missing.velvane"), window));
    EXPECT_EQ(questionText(window), "“missing.velvane” cannot be opened: no such file.");
    answer(window, "OK");

    EXPECT_FALSE(documents.open(folder.path(), window));
    EXPECT_TRUE(questionText(window).endsWith("cannot be opened: is a folder."));
    EXPECT_EQ(documents.windows().size(), 1);
}

TEST_F(DocumentsTest, AnAnswerFromTheFilePanelOpensTheDemos)
{
    EditorWindow *window = documents.newDemo();
    window->open();
    auto *panel = window->findChild<QFileDialog *>();
    ASSERT_TRUE(panel);
    Q_EMIT panel->filesSelected({demo("a.velvane"), demo("b.velvane")});
    settle();
    EXPECT_EQ(documents.windows().size(), 3);
}

TEST_F(DocumentsTest, TheFilePanelBeginsWhereTheLastDemoWas)
{
    documents.open(demo("a.velvane"), nullptr);
    documents.openPanel(documents.windows().constFirst());
    const auto *panel = documents.windows().constFirst()->findChild<QFileDialog *>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->directory(), QDir(folder.path()));
}

TEST_F(DocumentsTest, ClosingTheLastWindowIsTold)
{
    EditorWindow *first = documents.newDemo();
    EditorWindow *second = documents.newDemo();
    first->close();
    settle();
    EXPECT_EQ(lasts, 0);
    second->close();
    settle();
    EXPECT_EQ(lasts, 1);
    EXPECT_EQ(quits, 0);
}

TEST_F(DocumentsTest, QuittingWithNothingToSaveClosesAllAtOnce)
{
    documents.newDemo();
    documents.open(demo("a.velvane"), nullptr);
    documents.quit();
    settle();
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(lasts, 0);
}

TEST_F(DocumentsTest, QuittingWithoutWindowsIsReadyAtOnce)
{
    documents.quit();
    EXPECT_EQ(quits, 1);
}

TEST_F(DocumentsTest, QuittingAsksAboutOneModifiedDemoAfterAnother)
{
    const auto windows = modified(3);
    documents.quit();
    EXPECT_TRUE(question(windows[0]));
    EXPECT_FALSE(question(windows[1]));
    answer(windows[0], "Save");
    EXPECT_EQ(stepsIn(file("0.velvane")), 2);
    EXPECT_EQ(documents.windows().size(), 3);
    answer(windows[1], "Don't Save");
    answer(windows[2], "Save");
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(stepsIn(file("1.velvane")), 1);
    EXPECT_EQ(stepsIn(file("2.velvane")), 2);
}

TEST_F(DocumentsTest, CancelWhileQuittingKeepsEveryWindowWithItsChanges)
{
    const auto windows = modified(2);
    documents.quit();
    answer(windows[0], "Don't Save");
    answer(windows[1], "Cancel");
    EXPECT_EQ(documents.windows(), windows);
    EXPECT_EQ(quits, 0);
    EXPECT_FALSE(windows[0]->mayClose());

    windows[0]->close();
    EXPECT_TRUE(question(windows[0]));
}

TEST_F(DocumentsTest, ASaveThatFailsEndsTheQuitting)
{
    const auto windows = modified(1);
    demo("0.velvane", 9);
    documents.quit();
    answer(windows[0], "Save");
    answer(windows[0], "Cancel");
    EXPECT_EQ(documents.windows(), windows);
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(stepsIn(file("0.velvane")), 9);
}

TEST_F(DocumentsTest, AWindowThatClosesDuringAnExportCancelsItAndThenCloses)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "a.mp4");
    edit(window);
    EXPECT_FALSE(window->close());
    answer(window, "Don't Save");
    answer(window, "Stop Export");
    waitFor(window);
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(lasts, 1);
}

TEST_F(DocumentsTest, AnExportThatIsNotToStopKeepsItsWindow)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "a.mp4");
    for (const bool quitting : {false, true}) {
        if (quitting)
            documents.quit();
        else
            window->close();
        answer(window, "Cancel");
        EXPECT_TRUE(window->content().exporting().isExporting());
        EXPECT_FALSE(window->mayClose());
    }
    edit(window);
    window->close();
    answer(window, "Don't Save");
    answer(window, "Cancel");
    EXPECT_TRUE(window->content().exporting().isExporting());
    window->close();
    answer(window, "Cancel"); // of the changes, which are asked about again
    EXPECT_EQ(documents.windows().size(), 1);
    EXPECT_EQ(quits, 0);

    window->letGo();
    window->close();
    waitFor(window);
}

TEST_F(DocumentsTest, QuittingDuringExportsCancelsThemAndThenQuits)
{
    const QList<EditorWindow *> windows{documents.open(demo("a.velvane"), nullptr),
                                        documents.open(demo("b.velvane"), nullptr)};
    exportLong(windows[0], "a.mp4");
    exportLong(windows[1], "b.mp4");
    documents.quit();
    EXPECT_EQ(quits, 0);
    for (EditorWindow *window : windows)
        answer(window, "Stop Export");
    for (EditorWindow *window : windows)
        if (documents.windows().contains(window))
            waitFor(window);
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(lasts, 0);
    EXPECT_FALSE(documents.taskbar().progress());
}

TEST_F(DocumentsTest, CancelAfterAnEditInTheQuitsLastMomentEndsTheQuitting)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "a.mp4");
    documents.quit();
    answer(window, "Stop Export");
    edit(window);
    until([=] { return question(window) != nullptr; });
    answer(window, "Cancel");
    ASSERT_EQ(documents.windows().size(), 1);

    window->close();
    answer(window, "Don't Save");
    EXPECT_EQ(lasts, 1);
    EXPECT_EQ(quits, 0);
}

TEST_F(DocumentsTest, AnEditInTheQuitsLastMomentIsAskedAboutBeforeQuitting)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "a.mp4");
    documents.quit();
    answer(window, "Stop Export");
    edit(window);
    until([=] { return question(window) != nullptr; });
    answer(window, "Save");
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(lasts, 0);
    EXPECT_EQ(stepsIn(file("a.velvane")), 2);
}

TEST_F(DocumentsTest, TheExportsOfAllWindowsShareTheTaskbar)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    EXPECT_FALSE(documents.taskbar().progress());
    exportLong(window, "a.mp4");
    EXPECT_EQ(documents.taskbar().progress(), window->content().exporting().exportProgress());
    window->letGo();
    window->close();
    waitFor(window);
    EXPECT_FALSE(documents.taskbar().progress());
}

TEST_F(DocumentsTest, AWindowTakesThePlaceAndPaneWidthsOfTheLast)
{
    EditorWindow *window = documents.newDemo();
    window->setGeometry(40, 30, 1000, 610);
    window->content().panes().restore({310, 265});
    window->close();
    settle();
    EditorWindow *next = documents.newDemo();
    EXPECT_EQ(next->size(), QSize(1000, 610));
    EXPECT_EQ(next->content().panes().widths().sidebar, 310);
    EXPECT_EQ(next->content().panes().widths().inspector, 265);
}

TEST_F(DocumentsTest, WhatIsInstalledIsReadOnceForAllWindows)
{
    for (const char *app : {"Notes", "Mail"}) {
        Project &demo = project(documents.newDemo());
        StepList::addStep(demo, StepKind::switchApp);
        StepList::setApp(demo, 0, app);
        EXPECT_EQ(desktop.apps().installedReads(), 1) << app;
    }
}

TEST_F(DocumentsTest, TheSettingsStandUnderTheirKeys)
{
    documents.runSettings().setHideOthersDuringRun(true);
    documents.open(demo("a.velvane"), nullptr)->close();
    EXPECT_TRUE(stored.value("hideOthersDuringRun").toBool());
    EXPECT_TRUE(stored.contains("windowGeometry"));
    EXPECT_TRUE(stored.contains("recentDemos"));
    EXPECT_FALSE(stored.contains("sidebarWidth"));
}

TEST_F(DocumentsTest, OpenedAndSavedDemosAreRecent)
{
    documents.open(demo("a.velvane"), nullptr);
    EditorWindow *window = documents.newDemo();
    window->saveAs();
    choose(window, file("b.velvane"));
    const QList<RecentDemo> recents = documents.recents().demos();
    ASSERT_EQ(recents.size(), 2);
    EXPECT_EQ(recents[0].path, file("b.velvane"));
    EXPECT_EQ(recents[1].path, file("a.velvane"));
}

TEST_F(DocumentsTest, OfSeveralFilesThatAreNoDemosEachIsRefused)
{
    EditorWindow *window = documents.newDemo();
    documents.open({file("one.velvane"), file("two.velvane"), file("two.velvane")}, window);
    EXPECT_EQ(questionText(window), "“one.velvane” cannot be opened: no such file.");
    answer(window, "OK");
    EXPECT_EQ(questionText(window), "“two.velvane” cannot be opened: no such file.");
    answer(window, "OK");
    EXPECT_FALSE(question(window));
}

TEST_F(DocumentsTest, QuittingGoesOnAfterTheQuestionThatIsOpenAlready)
{
    const auto windows = modified(2);
    ask(windows[1], Question::message("Something happened."));
    documents.quit();
    answer(windows[0], "Don't Save");
    EXPECT_EQ(questionText(windows[1]), "Something happened.");
    answer(windows[1], "OK");
    EXPECT_EQ(questionText(windows[1]), "Do you want to save the changes to “1”?");
    answer(windows[1], "Cancel");
    EXPECT_FALSE(windows[0]->mayClose());
    EXPECT_EQ(quits, 0);
}

TEST_F(DocumentsTest, TheSameQuestionIsNotAskedTwice)
{
    const auto windows = modified(2);
    windows[1]->close();
    documents.quit();
    answer(windows[0], "Don't Save");
    EXPECT_FALSE(windows[0]->mayClose()) << "quitting has ended where it was asked already";
    answer(windows[1], "Save");
    EXPECT_EQ(documents.windows(), QList<EditorWindow *>{windows[0]});
    EXPECT_EQ(quits, 0);
}

} // namespace velvane
