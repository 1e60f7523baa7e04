#include "media/MovieFile.h"

#include "media/MovieError.h"
#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velvane {

namespace {

constexpr uid_t nobody = 65534;

/// Makes a movie file as another user; true when it is refused.
bool isRefusedTo(uid_t user, const QString &path)
{
    const pid_t child = fork();
    if (child == 0) {
        if (::seteuid(user) != 0)
            _exit(2);
        try {
            const MovieFile file(path);
            _exit(0);
        } catch (const MovieError &) {
            _exit(1);
        }
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 2);
    return WEXITSTATUS(status) == 1;
}

} // namespace

TEST(MovieFile, HasTheModeThatTheMaskLeaves)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mp4");
    const mode_t before = ::umask(027);
    MovieFile(path).close();
    ::umask(before);
    struct stat about {};
    ASSERT_EQ(::stat(qPrintable(path), &about), 0);
    EXPECT_EQ(about.st_mode & 0777, 0640U);
}

TEST(MovieFile, ALinkInItsPlaceIsReplacedNotFollowed)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(folder.filePath("target"), folder.filePath("a.mp4")));
    MovieFile(folder.filePath("a.mp4")).close();
    EXPECT_FALSE(QFile::exists(folder.filePath("target")));
    EXPECT_FALSE(QFileInfo(folder.filePath("a.mp4")).isSymLink());
}

TEST(MovieFile, ALinkThatAnotherUserPlantedInASharedFolderIsRefused)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may act for two users";
    const QTemporaryDir folder;
    ASSERT_EQ(::chmod(qPrintable(folder.path()), 0755), 0);
    const QString shared = folder.filePath("shared");
    ASSERT_TRUE(QDir().mkdir(shared));
    ASSERT_EQ(::chmod(qPrintable(shared), 01777), 0);
    constexpr uid_t third = 65533;
    ASSERT_TRUE(QFile::link(folder.filePath("target"), shared + "/a.mp4"));
    ASSERT_EQ(::lchown(qPrintable(shared + "/a.mp4"), third, third), 0);

    EXPECT_TRUE(isRefusedTo(nobody, shared + "/a.mp4"));
    EXPECT_FALSE(isRefusedTo(nobody, shared + "/b.mp4"));
}

TEST(MovieFile, OfTwoOfOneNameTheReplacedOneHasFailed)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mp4");
    MovieFile first(path);
    MovieFile second(path);
    first.close();
    second.close();
    EXPECT_TRUE(first.hasFailed());
    EXPECT_EQ(first.failure(), "No such file or directory");
    EXPECT_FALSE(second.hasFailed());
}

} // namespace velvane
