#include "app/DocumentsFixture.h"

#include <QPointer>

namespace velvane {

namespace {

struct EditorWindowTest : DocumentsFixture {
    EditorWindow &open(const QString &path = {})
    {
        window = path.isEmpty()
                     ? documents.newDemo()
                     : documents.add(std::make_unique<DemoDocument>(), DocumentFile(path));
        return *window;
    }
    QMessageBox *question() const { return DocumentsFixture::question(window); }
    void answer(const QString &text) const { DocumentsFixture::answer(window, text); }

    QPointer<EditorWindow> window;
};

} // namespace

TEST_F(EditorWindowTest, ANewDemoIsUntitledAndNotModified)
{
    EXPECT_EQ(open().windowTitle(), "Untitled[*]");
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(EditorWindowTest, AnEditMarksTheTitleAndUndoTakesTheMarkAway)
{
    open(file("a.velvane"));
    edit(window);
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->windowTitle(), "a[*]");
    window->content().fieldEditing().undo();
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(EditorWindowTest, AnOpenGestureCountsAsAModification)
{
    open(file("a.velvane"));
    project(window).beginEdit();
    project(window).setStartPoint({5, 5});
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EditorWindowTest, SavingWritesTheDemoAndTakesTheMarkAway)
{
    open(file("a.velvane"));
    edit(window);
    window->save();
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(status(window), "Saved a.velvane.");
    EXPECT_EQ(DemoDocument::read(file("a.velvane"))->project().steps(), project(window).steps());
}

TEST_F(EditorWindowTest, WhatIsBeingTypedIsSavedToo)
{
    open(file("a.velvane"));
    StepList::addStep(project(window), StepKind::type);
    FieldEditing &editing = window->content().fieldEditing();
    editing.setFocusedField(Field{Field::Kind::text});
    editing.setText("half typ");
    window->save();
    EXPECT_EQ(DemoDocument::read(file("a.velvane"))->project().steps().constLast().text,
              "half typ");
}

TEST_F(EditorWindowTest, SavingANewDemoAsksForAFileWhichBecomesItsOwn)
{
    open();
    edit(window);
    window->save();
    choose(window, file("new.velvane"));
    EXPECT_EQ(window->path(), file("new.velvane"));
    EXPECT_EQ(window->windowTitle(), "new[*]");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(QFile::exists(file("new.velvane")));
}

TEST_F(EditorWindowTest, SaveAsLeavesTheFirstFileAlone)
{
    window = documents.open(demo("a.velvane", 1), nullptr);
    edit(window);
    window->saveAs();
    choose(window, file("b.velvane"));
    EXPECT_EQ(stepsIn(file("a.velvane")), 1);
    EXPECT_EQ(stepsIn(file("b.velvane")), 2);
    EXPECT_EQ(window->path(), file("b.velvane"));
}

TEST_F(EditorWindowTest, SaveAsThatIsCancelledChangesNothing)
{
    open(file("a.velvane"));
    edit(window);
    window->saveAs();
    window->findChild<QFileDialog *>()->reject();
    settle();
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->path(), file("a.velvane"));
    EXPECT_FALSE(QFile::exists(file("a.velvane")));
}

TEST_F(EditorWindowTest, AnUnmodifiedWindowClosesWithoutAsking)
{
    EXPECT_TRUE(open().close());
}

TEST_F(EditorWindowTest, AModifiedWindowAsksBeforeItCloses)
{
    open(file("a.velvane"));
    edit(window);
    EXPECT_FALSE(window->close());
    ASSERT_TRUE(question());
    EXPECT_EQ(question()->text(), "Do you want to save the changes to “a”?");

    answer("Cancel");
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EditorWindowTest, EscapeCancelsTheClosing)
{
    open(file("a.velvane"));
    edit(window);
    window->close();
    question()->reject();
    settle();
    ASSERT_TRUE(window);
    EXPECT_FALSE(window->mayClose());
}

TEST_F(EditorWindowTest, SaveAsTheAnswerSavesAndCloses)
{
    open(file("a.velvane"));
    edit(window);
    window->close();
    answer("Save");
    EXPECT_FALSE(window);
    EXPECT_TRUE(QFile::exists(file("a.velvane")));
}

TEST_F(EditorWindowTest, SaveAsTheAnswerForANewDemoClosesOnceAFileIsChosen)
{
    open();
    edit(window);
    window->close();
    answer("Save");
    ASSERT_TRUE(window);
    choose(window, file("new.velvane"));
    EXPECT_FALSE(window);
    EXPECT_TRUE(QFile::exists(file("new.velvane")));
}

TEST_F(EditorWindowTest, DontSaveAsTheAnswerClosesAndLeavesTheFile)
{
    open(file("a.velvane"));
    edit(window);
    window->close();
    answer("Don't Save");
    EXPECT_FALSE(window);
    EXPECT_FALSE(QFile::exists(file("a.velvane")));
}

TEST_F(EditorWindowTest, AnEditAfterDontSaveIsAskedAboutAgain)
{
    open(file("a.velvane"));
    edit(window);
    window->confirmClose([](bool) {});
    answer("Don't Save");
    EXPECT_TRUE(window->mayClose());
    edit(window);
    EXPECT_FALSE(window->mayClose());
}

TEST_F(EditorWindowTest, AWindowMadeFullScreenLeavesItAtOnce)
{
    open();
    window->setWindowState(Qt::WindowFullScreen);
    settle();
    EXPECT_FALSE(window->isFullScreen());
}

TEST_F(EditorWindowTest, AWindowIsAtLeastNineHundredAndSixtyBySixHundred)
{
    open().resize(10, 10);
    EXPECT_EQ(window->size(), QSize(960, 600));
}

TEST_F(EditorWindowTest, ADroppedDemoOpensInItsOwnWindow)
{
    open();
    EXPECT_TRUE(drop(window, demo("dropped.velvane")));
    ASSERT_EQ(documents.windows().size(), 2);
    EXPECT_EQ(documents.windows().constLast()->path(), file("dropped.velvane"));
}

TEST_F(EditorWindowTest, ADroppedFileThatIsNoDemoIsRefusedInASentence)
{
    open();
    QFile bad(file("notes.txt"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly) && bad.write("hello") > 0);
    bad.close();
    EXPECT_TRUE(drop(window, bad.fileName()));
    EXPECT_EQ(documents.windows().size(), 1);
    ASSERT_TRUE(question());
    EXPECT_EQ(question()->text(), "“notes.txt” cannot be opened: not a property list.");
}

} // namespace velvane
