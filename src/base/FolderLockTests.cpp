#include "base/FolderLock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace velvane {

namespace {

/// Could another process lock the folder now?
bool isFree(const QString &folder)
{
    const int other = open(qPrintable(folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool locked = flock(other, LOCK_EX | LOCK_NB) == 0;
    close(other);
    return locked;
}

} // namespace

TEST(FolderLock, TheFolderIsTakenAsLongAsTheLockLives)
{
    const QTemporaryDir folder;
    {
        const FolderLock lock(folder.filePath("new"));
        EXPECT_TRUE(lock.isLocked());
        EXPECT_FALSE(isFree(folder.path()));
    }
    EXPECT_TRUE(isFree(folder.path()));
}

TEST(FolderLock, ALinkLeadsToTheFolderOfItsFile)
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    ASSERT_TRUE(QFile(folder.filePath("a")).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(folder.filePath("a"), other.filePath("link")));
    const FolderLock lock(other.filePath("link"));
    EXPECT_FALSE(isFree(folder.path()));
    EXPECT_TRUE(isFree(other.path()));
}

TEST(FolderLock, WithoutAFolderNothingIsLockedOrRefused)
{
    const QTemporaryDir folder;
    const FolderLock lock(folder.filePath("missing/file"));
    EXPECT_FALSE(lock.isLocked());
    EXPECT_FALSE(lock.refusal());
}

// A lock belongs to what has opened the folder: one more here is like another process.
TEST(FolderLock, WhileAnotherKeepsTheFolderNothingMayBeWritten)
{
    const QTemporaryDir folder;
    const FolderLock first(folder.filePath("a"));
    EXPECT_FALSE(first.refusal());
    const FolderLock second(folder.filePath("b"), 0s);
    EXPECT_FALSE(second.isLocked());
    EXPECT_EQ(second.refusal(), "cannot be written: another Velvane is writing in its folder");
}

} // namespace velvane
