#include "app/RecentDemos.h"

#include "app/RecentDemoDelegate.h"
#include "support/Print.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct RecentDemosTest : testing::Test {
    RecentDemosTest() { recents.setPictureFolder(folder.filePath("pictures")); }

    QString file(const QString &name) const
    {
        QFile made(folder.filePath(name));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        return made.fileName();
    }
    QStringList names() const
    {
        QStringList all;
        for (const RecentDemo &recent : recents.demos())
            all.append(recent.name());
        return all;
    }
    /// Adds a demo and waits until its picture is there.
    void addWithPicture(const QString &path, const Snapshot &shown)
    {
        QEventLoop loop;
        recents.add(path, shown);
        QObject::connect(&recents, &RecentDemos::changed, &loop, &QEventLoop::quit);
        constexpr int longEnough = 20'000; // milliseconds
        QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
        loop.exec();
    }

    const Snapshot demo{.canvasSize = {320, 200}};
    QTemporaryDir folder;
    QSettings stored{folder.filePath("settings.ini"), QSettings::IniFormat};
    RecentDemos recents{stored};
};

QDateTime at(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODate);
}

} // namespace

TEST_F(RecentDemosTest, TheNewestIsFirst)
{
    recents.add(file("a.velvane"), demo);
    recents.add(file("b.velvane"), demo);
    EXPECT_EQ(names(), (QStringList{"b", "a"}));
}

TEST_F(RecentDemosTest, ADemoIsThereOnce)
{
    recents.add(file("a.velvane"), demo);
    recents.add(file("b.velvane"), demo);
    recents.add(folder.path() + "/./a.velvane", demo);
    recents.add(file("a.velvane"), demo);
    EXPECT_EQ(names().first(), "a");
    EXPECT_EQ(names().count("b"), 1);
}

TEST_F(RecentDemosTest, OnlyTheLastTenAreKept)
{
    for (int i = 0; i < 12; ++i)
        recents.add(file(QString::number(i) + ".velvane"), demo);
    EXPECT_EQ(names().size(), 10);
    EXPECT_EQ(names().first(), "11");
    EXPECT_EQ(names().last(), "2");
}

TEST_F(RecentDemosTest, ADemoWithoutItsFileIsNotShownButComesBackWithIt)
{
    const QString path = file("a.velvane");
    recents.add(path, demo);
    QFile::remove(path);
    EXPECT_TRUE(names().isEmpty());
    file("a.velvane");
    EXPECT_EQ(names(), QStringList{"a"});
}

TEST_F(RecentDemosTest, TheyOutliveTheProcess)
{
    recents.add(file("a.velvane"), demo);
    stored.sync();
    QSettings later(folder.filePath("settings.ini"), QSettings::IniFormat);
    const RecentDemos again(later);
    ASSERT_EQ(again.demos().size(), 1);
    EXPECT_EQ(again.demos().first().path, folder.filePath("a.velvane"));
    EXPECT_LE(again.demos().first().used.secsTo(QDateTime::currentDateTime()), 60);
}

TEST_F(RecentDemosTest, APictureShowsTheFirstFrame)
{
    Snapshot red = demo;
    red.background = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    red.background.fill(Qt::red);
    const QString path = file("a.velvane");
    EXPECT_TRUE(recents.picture(path).isNull());
    addWithPicture(path, red);
    EXPECT_EQ(recents.picture(path).size(), QSize(116, 72));
    EXPECT_EQ(recents.picture(path).pixelColor(100, 60), QColor(Qt::red));
}

TEST_F(RecentDemosTest, ClearingForgetsDemosAndPictures)
{
    addWithPicture(file("a.velvane"), demo);
    recents.clear();
    EXPECT_TRUE(names().isEmpty());
    EXPECT_TRUE(QDir(folder.filePath("pictures")).isEmpty());
}

TEST(RecentDemo, FoldersInTheHomeFolderAreWrittenShort)
{
    EXPECT_EQ(RecentDemo{QDir::homePath() + "/Demos/a.velvane"}.folder(), "~/Demos");
    EXPECT_EQ(RecentDemo{QDir::homePath() + "/a.velvane"}.folder(), "~");
    EXPECT_EQ(RecentDemo{QDir::homePath() + "-other/a.velvane"}.folder(),
              QDir::homePath() + "-other");
    EXPECT_EQ(RecentDemo{"/srv/a b.velvane"}.name(), "a b");
}

TEST(RecentDemo, MomentsAreSaidAsPeopleSayThem)
{
    const QDateTime now = at("2024-06-15T18:00:00");
    EXPECT_EQ(RecentDemoDelegate::moment(at("2024-06-15T14:32:10"), now), "Today 14:32");
    EXPECT_EQ(RecentDemoDelegate::moment(at("2024-06-14T23:59:59"), now), "Yesterday");
    EXPECT_EQ(RecentDemoDelegate::moment(at("2024-05-12T09:00:00"), now), "12 May");
    EXPECT_EQ(RecentDemoDelegate::moment(at("2023-06-15T09:00:00"), now), "15 June 2023");
}

} // namespace velvane
