#include "base/WholeFile.h"

#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velvane {

namespace {

struct WholeFileTest : testing::Test {
    QString path(const QString &name) const { return folder.filePath(name); }
    QByteArray bytesOf(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    QStringList names() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    mode_t modeOf(const QString &name) const
    {
        struct stat about {};
        EXPECT_EQ(::stat(qPrintable(path(name)), &about), 0);
        return about.st_mode & 07777;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(WholeFileTest, ItIsThereAsWritten)
{
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    EXPECT_EQ(bytesOf("a"), "one");
    EXPECT_FALSE(WholeFile::write(path("a"), "two"));
    EXPECT_EQ(bytesOf("a"), "two");
    EXPECT_EQ(names(), QStringList{"a"});
}

TEST_F(WholeFileTest, ANewFileHasTheModeThatTheMaskLeaves)
{
    const mode_t before = ::umask(027);
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    ::umask(before);
    EXPECT_EQ(modeOf("a"), 0640u);
}

TEST_F(WholeFileTest, AnExistingFileKeepsItsMode)
{
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    ASSERT_EQ(::chmod(qPrintable(path("a")), 0604), 0);
    EXPECT_FALSE(WholeFile::write(path("a"), "two"));
    EXPECT_EQ(modeOf("a"), 0604u);
}

TEST_F(WholeFileTest, AnExistingFileKeepsItsOwnerAndGroup)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    constexpr uid_t owner = 1234;
    constexpr gid_t group = 4321;
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    ASSERT_EQ(::chown(qPrintable(path("a")), owner, group), 0);
    ASSERT_TRUE(QFile::link(path("a"), path("link")));
    EXPECT_FALSE(WholeFile::write(path("link"), "two"));
    struct stat about {};
    ASSERT_EQ(::stat(qPrintable(path("a")), &about), 0);
    EXPECT_EQ(about.st_uid, owner);
    EXPECT_EQ(about.st_gid, group);
}

TEST_F(WholeFileTest, AnExistingFileKeepsItsAttributes)
{
    const QByteArray tags("holidays,work");
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    if (::setxattr(qPrintable(path("a")), "user.xdg.tags", tags.constData(), size_t(tags.size()), 0)
        != 0)
        GTEST_SKIP() << "this file system has no attributes";
    EXPECT_FALSE(WholeFile::write(path("a"), "two"));
    QByteArray found(100, '\0');
    found.resize(std::max<ssize_t>(
        ::getxattr(qPrintable(path("a")), "user.xdg.tags", found.data(), size_t(found.size())), 0));
    EXPECT_EQ(found, tags);
}

TEST_F(WholeFileTest, AFullDiskLeavesTheOldFileAndNothingElse)
{
    EXPECT_FALSE(WholeFile::write(path("a"), "one"));
    {
        const FileSizeLimit limit(100);
        EXPECT_EQ(WholeFile::write(path("a"), QByteArray(1000, 'x')), "File too large");
    }
    EXPECT_EQ(bytesOf("a"), "one");
    EXPECT_EQ(names(), QStringList{"a"});
}

TEST_F(WholeFileTest, OnesOwnLinkIsWrittenThrough)
{
    ASSERT_TRUE(QFile::link(path("target"), path("link")));
    EXPECT_FALSE(WholeFile::isPlantedLink(path("link")));
    EXPECT_FALSE(WholeFile::write(path("link"), "one"));
    EXPECT_EQ(bytesOf("target"), "one");
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
}

TEST_F(WholeFileTest, ALinkThatAnotherUserPlantedInASharedFolderIsNotFollowed)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may make another user's link";
    constexpr uid_t nobody = 65534;
    ASSERT_TRUE(QDir(folder.path()).mkdir("shared"));
    ASSERT_EQ(::chmod(qPrintable(path("shared")), 01777), 0);
    ASSERT_TRUE(QFile::link(path("target"), path("shared/link")));
    ASSERT_EQ(::lchown(qPrintable(path("shared/link")), nobody, nobody), 0);
    ASSERT_TRUE(QFile::link(path("shared/link"), path("detour")));

    for (const QString name : {"shared/link", "detour"}) {
        EXPECT_TRUE(WholeFile::isPlantedLink(path(name)));
        EXPECT_EQ(WholeFile::write(path(name), "one"), "another user's link stands in its place");
    }
    EXPECT_FALSE(QFile::exists(path("target")));
}

TEST_F(WholeFileTest, LinksInACircleEndTheSearch)
{
    ASSERT_TRUE(QFile::link(path("b"), path("a")));
    ASSERT_TRUE(QFile::link(path("a"), path("b")));
    EXPECT_FALSE(WholeFile::isPlantedLink(path("a")));
}

} // namespace velvane
