#include "app/FileWatch.h"

#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct FileWatchTest : testing::Test {
    FileWatchTest()
    {
        write("one");
        QObject::connect(&watch, &FileWatch::touched, &watch, [this] { ++touches; });
        watch.setPath(path);
    }
    void write(const QByteArray &bytes) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("a");
    FileWatch watch;
    int touches = 0;
};

} // namespace

TEST_F(FileWatchTest, AFileLeftAloneIsNotReported)
{
    watch.flush();
    EXPECT_EQ(touches, 0);
}

TEST_F(FileWatchTest, OneChangeIsReportedOnce)
{
    write("three");
    watch.flush();
    watch.flush();
    EXPECT_EQ(touches, 1);
}

TEST_F(FileWatchTest, ARemovedFileAndItsReturnAreReported)
{
    QFile::remove(path);
    watch.flush();
    EXPECT_EQ(touches, 1);
    write("back");
    watch.flush();
    EXPECT_EQ(touches, 2);
}

TEST_F(FileWatchTest, AChangeBeforeThePathIsSetAgainIsKnown)
{
    write("by us");
    watch.setPath(path);
    watch.flush();
    EXPECT_EQ(touches, 0);
}

TEST_F(FileWatchTest, TheSystemTellsOfAChange)
{
    QEventLoop loop;
    QObject::connect(&watch, &FileWatch::touched, &loop, &QEventLoop::quit);
    constexpr int longEnough = 20'000; // milliseconds
    QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
    write("three");
    loop.exec();
    EXPECT_EQ(touches, 1);
}

TEST_F(FileWatchTest, NothingIsReportedWithoutAFile)
{
    watch.setPath({});
    write("three");
    watch.flush();
    EXPECT_EQ(touches, 0);
}

} // namespace velvane
