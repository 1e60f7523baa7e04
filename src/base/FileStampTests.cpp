#include "base/FileStamp.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace velvane {

namespace {

struct FileStampTest : testing::Test {
    FileStampTest()
    {
        write("a");
        write("b");
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    void write(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("same");
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(FileStampTest, AFileIsTheSameByAnyPathAndThroughLinks)
{
    ASSERT_TRUE(QFile::link(path("a"), path("symbolic")));
    ASSERT_EQ(link(qPrintable(path("a")), qPrintable(path("hard"))), 0);
    EXPECT_TRUE(FileStamp::isSameFile(path("a"), path("./a")));
    EXPECT_TRUE(FileStamp::isSameFile(path("a"), path("symbolic")));
    EXPECT_TRUE(FileStamp::isSameFile(path("hard"), path("a")));
}

TEST_F(FileStampTest, EqualContentsDoNotMakeTheSameFile)
{
    EXPECT_FALSE(FileStamp::isSameFile(path("a"), path("b")));
}

TEST_F(FileStampTest, WhatDoesNotExistIsTheSameAsNothing)
{
    EXPECT_FALSE(FileStamp::isSameFile(path("a"), path("missing")));
    EXPECT_FALSE(FileStamp::isSameFile(path("missing"), path("missing")));
    EXPECT_FALSE(FileStamp::isSameFile({}, {}));
}

TEST_F(FileStampTest, NothingHasNoStamp)
{
    EXPECT_FALSE(FileStamp::of(path("missing")));
    EXPECT_FALSE(FileStamp::of({}));
    EXPECT_EQ(FileStamp::of(path("a"))->size, 4);
}

} // namespace velvane
