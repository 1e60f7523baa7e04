#include "app/DocumentsFixture.h"
#include "support/FileSizeLimit.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace velvane {

namespace {

/// A window on a file of one step, with an edit that is not saved.
struct EditorWindowFileTest : DocumentsFixture {
    EditorWindowFileTest() : window(documents.open(demo("a.velvane", 1), nullptr)) { edit(window); }

    void changeOutside(int steps = 7) const { demo("a.velvane", steps); }
    void look() const { window->findChild<FileWatch *>()->flush(); }

    EditorWindow *window;
};

/// While it lives, files are used as by someone who owns none of them.
class AsNobody {
public:
    AsNobody()
    {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && seteuid(nobody) != 0)
            ADD_FAILURE() << "cannot become another user";
    }
    ~AsNobody() { std::ignore = seteuid(getuid()); }
    Q_DISABLE_COPY_MOVE(AsNobody)
};

} // namespace

TEST_F(EditorWindowFileTest, AFullDiskLeavesTheFileAndTheDemoAsTheyAre)
{
    const QByteArray before = bytesOf(file("a.velvane"));
    {
        const FileSizeLimit full(10);
        window->save();
    }
    EXPECT_EQ(bytesOf(file("a.velvane")), before);
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(questionText(window), "“a.velvane” could not be saved.");
    EXPECT_EQ(status(window), "“a.velvane” could not be saved.");
    answer(window, "Cancel");

    window->save();
    EXPECT_EQ(stepsIn(file("a.velvane")), 2);
}

TEST_F(EditorWindowFileTest, AFileThatMayNotBeWrittenCanBeSavedElsewhere)
{
    QTemporaryDir other;
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0555), 0);
    {
        const AsNobody nobody;
        window->save();
    }
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0755), 0);
    EXPECT_EQ(questionText(window), "“a.velvane” could not be saved.");
    EXPECT_EQ(stepsIn(file("a.velvane")), 1);

    answer(window, "Save As…");
    choose(window, other.filePath("b.velvane"));
    EXPECT_EQ(stepsIn(other.filePath("b.velvane")), 2);
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(EditorWindowFileTest, ASaveThatFailsKeepsTheWindowOpen)
{
    window->close();
    {
        const FileSizeLimit full(10);
        answer(window, "Save");
    }
    answer(window, "Cancel");
    EXPECT_EQ(documents.windows(), QList{window});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(EditorWindowFileTest, SavingKeepsTheModeAndTheLink)
{
    const QString link = file("link.velvane");
    ASSERT_TRUE(QFile::link(file("a.velvane"), link));
    ASSERT_EQ(chmod(qPrintable(file("a.velvane")), 0640), 0);
    window->keepOpen();
    EditorWindow *same = documents.open(link, nullptr);
    ASSERT_EQ(same, window);
    window->save();

    struct stat info {};
    ASSERT_EQ(stat(qPrintable(file("a.velvane")), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(stepsIn(link), 2);
}

TEST_F(EditorWindowFileTest, ADemoOpenedThroughALinkIsSavedThroughIt)
{
    const QString target = demo("target.velvane", 3);
    const QString link = file("link.velvane");
    ASSERT_TRUE(QFile::link(target, link));
    EditorWindow *linked = documents.open(link, nullptr);
    edit(linked);
    linked->save();
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(stepsIn(target), 4);
}

TEST_F(EditorWindowFileTest, AFileChangedOutsideIsNotReplacedWithoutAsking)
{
    changeOutside();
    window->save();
    EXPECT_EQ(stepsIn(file("a.velvane")), 7);
    EXPECT_EQ(questionText(window), "“a” was changed by another program since it was opened or "
                                    "saved here.");
    answer(window, "Cancel");
    EXPECT_EQ(stepsIn(file("a.velvane")), 7);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EditorWindowFileTest, AFileChangedOutsideIsReplacedOnRequest)
{
    changeOutside();
    window->save();
    answer(window, "Replace");
    EXPECT_EQ(stepsIn(file("a.velvane")), 2);
    EXPECT_FALSE(window->isWindowModified());

    edit(window);
    window->save();
    EXPECT_FALSE(question(window));
    EXPECT_EQ(stepsIn(file("a.velvane")), 3);
}

TEST_F(EditorWindowFileTest, InsteadOfReplacingAChangedFileAnotherCanBeWritten)
{
    changeOutside();
    window->save();
    answer(window, "Save As…");
    choose(window, file("b.velvane"));
    EXPECT_EQ(stepsIn(file("a.velvane")), 7);
    EXPECT_EQ(stepsIn(file("b.velvane")), 2);
}

TEST_F(EditorWindowFileTest, AChangeOutsideIsToldOnce)
{
    changeOutside();
    look();
    EXPECT_EQ(questionText(window), "“a” was changed by another program.");
    answer(window, "Keep My Version");
    look();
    EXPECT_FALSE(question(window));
}

TEST_F(EditorWindowFileTest, KeepingOnesVersionStillAsksBeforeItReplacesTheOther)
{
    changeOutside();
    look();
    answer(window, "Keep My Version");
    EXPECT_TRUE(window->isWindowModified());
    window->save();
    EXPECT_TRUE(question(window));
    EXPECT_EQ(stepsIn(file("a.velvane")), 7);
}

TEST_F(EditorWindowFileTest, ReloadingTakesTheOtherVersionAndCanBeUndone)
{
    changeOutside();
    look();
    answer(window, "Reload");
    EXPECT_EQ(project(window).steps().size(), 7);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(project(window).undoManager()->undoText(), "Reload");

    window->content().fieldEditing().undo();
    EXPECT_EQ(project(window).steps().size(), 2);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EditorWindowFileTest, ReloadingWhatIsNoDemoAnyMoreKeepsTheOpenOne)
{
    QFile file(this->file("a.velvane"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("broken") > 0);
    file.close();
    look();
    answer(window, "Reload");
    EXPECT_EQ(questionText(window), "“a.velvane” cannot be opened: not a property list.");
    EXPECT_EQ(project(window).steps().size(), 2);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EditorWindowFileTest, ADeletedFileMakesTheDemoModifiedAndIsSavedAgain)
{
    window->save();
    ASSERT_FALSE(window->isWindowModified());
    QFile::remove(file("a.velvane"));
    look();
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(status(window), "“a” was moved or deleted; saving writes it again.");
    window->save();
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(stepsIn(file("a.velvane")), 2);
}

TEST_F(EditorWindowFileTest, OnesOwnSaveIsNoChangeOutside)
{
    window->save();
    look();
    EXPECT_FALSE(question(window));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(EditorWindowFileTest, TwoProcessesOnOneFileDoNotReplaceEachOthersWork)
{
    Documents otherProcess(desktop, stored);
    EditorWindow *other = otherProcess.open(file("a.velvane"), nullptr);
    ASSERT_NE(other, window);
    edit(other);
    edit(other);
    other->save();

    window->save();
    EXPECT_TRUE(question(window));
    EXPECT_EQ(stepsIn(file("a.velvane")), 3);
}

TEST_F(EditorWindowFileTest, AFileThatMayNotBeReadIsRefusedWithTheReason)
{
    const QString path = demo("theirs.velvane");
    QFile::setPermissions(path, {});
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0555), 0);
    {
        const AsNobody nobody;
        EXPECT_FALSE(documents.open(path, window));
    }
    EXPECT_EQ(questionText(window), "“theirs.velvane” cannot be opened: Permission denied.");
}

// The system's own file panels ask before they replace a file, but about the name as it was typed.
TEST_F(EditorWindowFileTest, ANameWithoutSuffixReplacesNoDemoUnasked)
{
    demo("b.velvane", 5);
    const auto saveAs = [&](const QString &name) {
        window->saveAs();
        choose(window, file(name));
    };
    saveAs("b");
    EXPECT_EQ(questionText(window), "“b.velvane” already exists.");
    answer(window, "Cancel");
    EXPECT_EQ(window->name(), "a");
    saveAs("b");
    answer(window, "Save As…");
    choose(window, file("c"));
    EXPECT_EQ(window->name(), "c");
    EXPECT_EQ(stepsIn(file("c.velvane")), 2);
    EXPECT_EQ(stepsIn(file("b.velvane")), 5);
    saveAs("b");
    answer(window, "Replace");
    EXPECT_EQ(window->path(), file("b.velvane"));
    EXPECT_EQ(stepsIn(file("b.velvane")), 2);
}

} // namespace velvane
