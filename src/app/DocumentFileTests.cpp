#include "app/DocumentFile.h"

#include "base/FolderLock.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velvane {

namespace {

using Fate = DocumentFile::Fate;

struct DocumentFileTest : testing::Test {
    DocumentFileTest() { write("a", "one"); }

    QString path(const QString &name) const { return folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
};

/// Adds steps one by one, each to what the file holds by then, as two people would who share it.
void addSteps(const QString &path, int count)
{
    while (count > 0) {
        DocumentFile file(path);
        ProjectFile demo = DemoDocument::readFile(path);
        demo.steps.append(Step{});
        const auto refusal = file.write(demo);
        if (!refusal)
            --count;
        else if (!refusal->isChanged)
            _exit(1);
    }
}

/// Runs the work in a process of its own; its id.
template <typename Work>
pid_t inProcess(const Work &work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    return child;
}

int statusOf(pid_t child)
{
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

} // namespace

TEST_F(DocumentFileTest, AFileLeftAloneIsUnchanged)
{
    EXPECT_EQ(DocumentFile(path("a")).fate(), Fate::unchanged);
}

TEST_F(DocumentFileTest, AnotherLengthIsAChange)
{
    const DocumentFile file(path("a"));
    write("a", "three");
    EXPECT_EQ(file.fate(), Fate::changed);
}

TEST_F(DocumentFileTest, AnotherTimeIsAChangeAtTheSameLength)
{
    const DocumentFile file(path("a"));
    const timespec times[] = {{1, 0}, {1, 1}};
    ASSERT_EQ(utimensat(AT_FDCWD, qPrintable(path("a")), times, 0), 0);
    EXPECT_EQ(file.fate(), Fate::changed);
}

TEST_F(DocumentFileTest, AFilePutInItsPlaceIsAChange)
{
    const DocumentFile file(path("a"));
    write("b", "one");
    ASSERT_EQ(rename(qPrintable(path("b")), qPrintable(path("a"))), 0);
    EXPECT_EQ(file.fate(), Fate::changed);
}

TEST_F(DocumentFileTest, ARemovedFileIsGone)
{
    const DocumentFile file(path("a"));
    QFile::remove(path("a"));
    EXPECT_EQ(file.fate(), Fate::gone);
}

TEST_F(DocumentFileTest, AFileThatCameIntoBeingSinceIsAChange)
{
    const DocumentFile file(path("new"));
    EXPECT_EQ(file.fate(), Fate::unchanged);
    write("new", "one");
    EXPECT_EQ(file.fate(), Fate::changed);
}

TEST_F(DocumentFileTest, LinksAndDetoursAreTheSameFile)
{
    ASSERT_TRUE(QFile::link(path("a"), path("symbolic")));
    ASSERT_EQ(link(qPrintable(path("a")), qPrintable(path("hard"))), 0);
    const DocumentFile file(path("a"));
    EXPECT_TRUE(file.isSameAs(path("symbolic")));
    EXPECT_TRUE(file.isSameAs(path("hard")));
    EXPECT_TRUE(file.isSameAs(folder.path() + "/./a"));
}

TEST_F(DocumentFileTest, EqualContentsAreNotTheSameFile)
{
    write("b", "one");
    EXPECT_FALSE(DocumentFile(path("a")).isSameAs(path("b")));
}

TEST_F(DocumentFileTest, NoFileIsTheSameAsNone)
{
    EXPECT_TRUE(DocumentFile().isEmpty());
    EXPECT_FALSE(DocumentFile().isSameAs(QString()));
    EXPECT_FALSE(DocumentFile().isSameAs(path("a")));
}

TEST_F(DocumentFileTest, WritingMakesItTheFileAsWritten)
{
    DocumentFile file(path("a"));
    EXPECT_FALSE(file.write(DemoDocument().snapshot()));
    EXPECT_EQ(file.fate(), Fate::unchanged);
    EXPECT_TRUE(DemoDocument::read(path("a")));
}

// It may be about to put another file in its place.
TEST_F(DocumentFileTest, WhileAnotherProcessWritesThereNothingIsWritten)
{
    DocumentFile file(path("a"));
    const FolderLock other(path("b"));
    const auto refusal = file.write(DemoDocument().snapshot());
    ASSERT_TRUE(refusal);
    EXPECT_FALSE(refusal->isChanged);
    EXPECT_EQ(refusal->reason, "cannot be written: another Velvane is writing in its folder");
    QFile left(path("a"));
    ASSERT_TRUE(left.open(QIODevice::ReadOnly));
    EXPECT_EQ(left.readAll(), "one");
}

TEST_F(DocumentFileTest, AFileThatOthersChangedIsLeftToThem)
{
    DocumentFile file(path("a"));
    write("a", "theirs");
    const auto refusal = file.write(DemoDocument().snapshot());
    ASSERT_TRUE(refusal);
    EXPECT_TRUE(refusal->isChanged);
    QFile read(path("a"));
    ASSERT_TRUE(read.open(QIODevice::ReadOnly));
    EXPECT_EQ(read.readAll(), "theirs");
}

TEST_F(DocumentFileTest, AFileThatHasGoneIsWrittenAgain)
{
    DocumentFile file(path("a"));
    ASSERT_TRUE(QFile::remove(path("a")));
    EXPECT_FALSE(file.write(DemoDocument().snapshot()));
    EXPECT_EQ(file.fate(), Fate::unchanged);
}

TEST_F(DocumentFileTest, WhatCannotBeWrittenSaysWhy)
{
    DocumentFile file(path("missing/file"));
    const auto refusal = file.write(DemoDocument().snapshot());
    ASSERT_TRUE(refusal);
    EXPECT_FALSE(refusal->isChanged);
    EXPECT_TRUE(refusal->reason.startsWith("cannot be written: ")) << refusal->reason.toStdString();
}

TEST_F(DocumentFileTest, ProcessesThatSaveAtTheSameTimeLoseNothingOfEachOther)
{
    constexpr int each = 50;
    DocumentFile file(path("demo"));
    ASSERT_FALSE(file.write(DemoDocument().snapshot()));
    const qsizetype before = DemoDocument::readFile(path("demo")).steps.size();

    const auto work = [this] { addSteps(path("demo"), each); };
    const pid_t first = inProcess(work);
    const pid_t second = inProcess(work);

    EXPECT_EQ(statusOf(first), 0);
    EXPECT_EQ(statusOf(second), 0);
    EXPECT_EQ(DemoDocument::readFile(path("demo")).steps.size(), before + 2 * each);
}

TEST_F(DocumentFileTest, AfterARestartItIsTheSameOnADeviceOfAnotherNumber)
{
    auto stamp = FileStamp::of(path("a"));
    ASSERT_TRUE(stamp);
    ++stamp->device;
    EXPECT_EQ(DocumentFile(path("a"), stamp).fate(), Fate::unchanged);
    ++stamp->modified;
    EXPECT_EQ(DocumentFile(path("a"), stamp).fate(), Fate::changed);
}

} // namespace velvane
