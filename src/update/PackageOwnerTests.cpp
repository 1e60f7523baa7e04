#include "update/PackageOwner.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

/// A system's folder with a few lists.
struct PackageOwnerTest : testing::Test {
    void write(const QString &path, const QByteArray &content = {}) const
    {
        const QString full = system.filePath(path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(full).path()));
        QFile file(full);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    PackageOwner::Owner ownerOf(const QString &executable) const
    {
        return PackageOwner::of(executable, system.path());
    }

    QTemporaryDir system;
};

using Owner = PackageOwner::Owner;

} // namespace

TEST_F(PackageOwnerTest, NobodyOwnsWhatIsInNoList)
{
    EXPECT_EQ(ownerOf("/usr/bin/velvane"), Owner::none);
    write("var/lib/dpkg/info/bash.list", "/.\n/bin\n/bin/bash\n");
    EXPECT_EQ(ownerOf("/usr/bin/velvane"), Owner::none);
    EXPECT_EQ(PackageOwner::explanation(Owner::none), "");
}

TEST_F(PackageOwnerTest, ThePackageManagerOwnsWhatItInstalled)
{
    write("var/lib/dpkg/info/velvane.list", "/.\n/usr\n/usr/bin\n/usr/bin/velvane\n");
    EXPECT_EQ(ownerOf("/usr/bin/velvane"), Owner::packageManager);
    EXPECT_EQ(ownerOf("/opt/velvane/velvane"), Owner::none);
    EXPECT_EQ(ownerOf("/usr/bin/vel"), Owner::none);
    EXPECT_EQ(ownerOf("/bin/velvane"), Owner::none);
}

TEST_F(PackageOwnerTest, AnyPackageMayOwnIt)
{
    write("var/lib/dpkg/info/demo-tools:amd64.list", "/opt/tools/velvane");
    EXPECT_EQ(ownerOf("/opt/tools/velvane"), Owner::packageManager);
}

TEST_F(PackageOwnerTest, OldPackagesInstallIntoBin)
{
    write("var/lib/dpkg/info/velvane.list", "/.\n/bin\n/bin/velvane\n");
    EXPECT_EQ(ownerOf("/usr/bin/velvane"), Owner::packageManager);
}

TEST_F(PackageOwnerTest, OnlyListsCount)
{
    write("var/lib/dpkg/info/velvane.conffiles", "/usr/bin/velvane\n");
    EXPECT_EQ(ownerOf("/usr/bin/velvane"), Owner::none);
}

TEST_F(PackageOwnerTest, AFlatpakKnowsItself)
{
    write(".flatpak-info", "[Application]\n");
    EXPECT_EQ(ownerOf("/app/bin/velvane"), Owner::flatpak);
}

TEST_F(PackageOwnerTest, EachOwnerIsExplained)
{
    EXPECT_EQ(PackageOwner::explanation(Owner::flatpak),
              "Velvane was installed as a Flatpak, which brings its updates.");
    EXPECT_EQ(PackageOwner::explanation(Owner::packageManager),
              "Velvane was installed by the package manager, which brings its updates.");
}

// On a system of this kind the shell, at least, comes from a package.
TEST(PackageOwner, KnowsTheFilesOfThisSystem)
{
    if (!QFile::exists("/var/lib/dpkg/info"))
        GTEST_SKIP() << "not a system with dpkg";
    EXPECT_EQ(PackageOwner::of(QFileInfo("/bin/sh").canonicalFilePath()), Owner::packageManager);
    EXPECT_EQ(PackageOwner::of("/home/somebody/velvane"), Owner::none);
}

} // namespace velvane
