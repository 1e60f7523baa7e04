#include "platform/freedesktop/RecentFiles.h"

#include "support/Print.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace velvane {

namespace {

const QString type = "application/vnd.orvikel.velvane";

const QByteArray others = R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">
  <bookmark href="file:///notes%20a.txt" added="2026-01-02T03:04:05Z" modified="2026-01-02T03:04:06Z" visited="2026-01-02T03:04:07Z">
    <title>Notes &amp; more</title>
    <info>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type="text/plain"/>
        <bookmark:groups>
          <bookmark:group>Writing</bookmark:group>
        </bookmark:groups>
        <bookmark:applications>
          <bookmark:application name="Writer" exec="&apos;writer %u&apos;" modified="2026-01-02T03:04:06Z" count="7"/>
        </bookmark:applications>
      </metadata>
    </info>
  </bookmark>
</xbel>
)";

struct RecentFilesTest : testing::Test {
    QByteArray text() const
    {
        QFile file(list);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &bytes) const
    {
        QFile file(list);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    bool add(const QString &file) const { return RecentFiles::add(file, type, list); }

    QTemporaryDir folder;
    const QString list = folder.filePath("data/recently-used.xbel");
};

} // namespace

TEST_F(RecentFilesTest, AFileIsThereWithItsTypeAndProgram)
{
    ASSERT_TRUE(add("/demos/an ä.velvane"));
    EXPECT_TRUE(text().contains("href=\"file:///demos/an%20%C3%A4.velvane\"")) << text().data();
    EXPECT_TRUE(text().contains("<mime:mime-type type=\"application/vnd.orvikel.velvane\"/>"));
    EXPECT_TRUE(text().contains("name=\"Velvane\" exec=\"&apos;velvane %u&apos;\""));
    EXPECT_EQ(QFile::permissions(list) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST_F(RecentFilesTest, AFileIsThereOnceHoweverOftenUsed)
{
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(add("/a.velvane"));
    EXPECT_EQ(text().count("<bookmark href="), 1);
    EXPECT_TRUE(text().contains("count=\"3\"")) << text().data();
}

TEST_F(RecentFilesTest, TheEntriesOfOthersStay)
{
    ASSERT_TRUE(add("/a.velvane"));
    write(others);
    ASSERT_TRUE(add("/a.velvane"));
    EXPECT_EQ(text().count("<bookmark href="), 2);
    for (const char *part :
         {"href=\"file:///notes%20a.txt\" added=\"2026-01-02T03:04:05", "Notes &amp; more",
          "<bookmark:group>Writing</bookmark:group>", "name=\"Writer\"", "count=\"7\""})
        EXPECT_TRUE(text().contains(part)) << part;
}

TEST_F(RecentFilesTest, AnotherProgramsUseOfTheSameFileStays)
{
    ASSERT_TRUE(add("/start"));
    write(others);
    ASSERT_TRUE(add("/notes a.txt"));
    EXPECT_EQ(text().count("<bookmark href="), 1);
    EXPECT_TRUE(text().contains("name=\"Writer\""));
    EXPECT_TRUE(text().contains("name=\"Velvane\""));
}

TEST_F(RecentFilesTest, AListThatIsNoneIsLeftAlone)
{
    ASSERT_TRUE(add("/start"));
    for (const QByteArray &bad : {QByteArray("no list"), others.first(200), QByteArray("<html/>"),
                                  QByteArray("\xff\xfe")}) {
        write(bad);
        EXPECT_FALSE(add("/a.velvane")) << bad.data();
        EXPECT_EQ(text(), bad);
    }
}

TEST_F(RecentFilesTest, AListThatWouldNotBeOneAfterwardsIsLeftAlone)
{
    ASSERT_TRUE(add("/start"));
    QByteArray strange = others;
    strange.replace("text/plain", "text&amp;plain");
    write(strange);
    EXPECT_FALSE(add("/a.velvane"));
    EXPECT_EQ(text(), strange);
}

TEST_F(RecentFilesTest, WhereNothingCanBeWrittenNothingHappens)
{
    EXPECT_FALSE(RecentFiles::add("/a.velvane", type, "/proc/none/recently-used.xbel"));
}

TEST_F(RecentFilesTest, RemovingOursLeavesWhatOthersHaveUsed)
{
    ASSERT_TRUE(add("/start"));
    write(others);
    ASSERT_TRUE(add("/notes a.txt"));
    ASSERT_TRUE(add("/a.velvane"));
    ASSERT_TRUE(add("/b.velvane"));
    ASSERT_TRUE(RecentFiles::removeOurs(list));
    EXPECT_EQ(text().count("<bookmark href="), 1);
    EXPECT_FALSE(text().contains("Velvane")) << text().data();
    for (const char *part :
         {"href=\"file:///notes%20a.txt\"", "Notes &amp; more",
          "<bookmark:group>Writing</bookmark:group>", "name=\"Writer\"", "count=\"7\""})
        EXPECT_TRUE(text().contains(part)) << part;
}

TEST_F(RecentFilesTest, RemovingOursMakesNoListAndTouchesNoneThatIsNone)
{
    EXPECT_TRUE(RecentFiles::removeOurs(list));
    EXPECT_FALSE(QFile::exists(list));
    ASSERT_TRUE(add("/start"));
    write("no list");
    EXPECT_FALSE(RecentFiles::removeOurs(list));
    EXPECT_EQ(text(), "no list");
}

TEST_F(RecentFilesTest, SeveralAtOnceLoseNothingOfEachOther)
{
    const auto work = [this](int first) {
        for (int i = first; i < first + 20; ++i)
            EXPECT_TRUE(add("/" + QString::number(i) + ".velvane"));
    };
    std::thread other(work, 100);
    work(200);
    other.join();
    EXPECT_EQ(text().count("<bookmark href="), 40);
}

} // namespace velvane
