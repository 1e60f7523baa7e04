#include "platform/freedesktop/DesktopEntries.h"

#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace velvane {

namespace {

class DesktopEntriesTest : public testing::Test {
protected:
    void write(const QString &place, const QByteArray &bytes)
    {
        const QString path = root.filePath(place);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    void app(const QString &place, const QByteArray &name, const QByteArray &more = {})
    {
        write(place, "[Desktop Entry]\nType=Application\nExec=true\nName=" + name + "\n" + more);
    }

    // Makes a folder look unchanged for an hour.
    void age(const QString &place)
    {
        const std::filesystem::path path(root.filePath(place).toStdString());
        const auto before = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
        std::filesystem::last_write_time(path, before);
    }

    SessionFolders folders() const
    {
        SessionFolders session;
        session.data = {root.filePath("own"), root.filePath("missing"), root.filePath("system")};
        session.desktops = QStringList("GNOME");
        return session;
    }

    QStringList shown() const
    {
        DesktopEntries entries(folders());
        QStringList found;
        for (const DesktopEntry &entry : entries.shown())
            found << entry.id + "=" + entry.name;
        return found;
    }

    QTemporaryDir root;
};

QProcessEnvironment environment(std::initializer_list<std::pair<QString, QString>> values)
{
    QProcessEnvironment result;
    for (const auto &[name, value] : values)
        result.insert(name, value);
    return result;
}

} // namespace

TEST_F(DesktopEntriesTest, ComeFolderByFolderAndByNameWithinOne)
{
    app("system/applications/a.desktop", "System A");
    app("own/applications/z.desktop", "Own Z");
    app("own/applications/b.desktop", "Own B");
    EXPECT_EQ(shown(), QStringList({"b=Own B", "z=Own Z", "a=System A"}));
}

TEST_F(DesktopEntriesTest, AnEntryHidesLaterOnesWithItsId)
{
    app("own/applications/notes.desktop", "Mine");
    app("system/applications/notes.desktop", "Theirs");
    EXPECT_EQ(shown(), QStringList("notes=Mine"));
}

TEST_F(DesktopEntriesTest, AHiddenOrUndisplayedOrBrokenEntryHidesThemToo)
{
    write("own/applications/a.desktop", "[Desktop Entry]\nHidden=true\n");
    app("own/applications/b.desktop", "B", "NoDisplay=true\n");
    write("own/applications/c.desktop", "nonsense");
    for (const char *name : {"a", "b", "c", "d"})
        app(QStringLiteral("system/applications/%1.desktop").arg(name), name);
    EXPECT_EQ(shown(), QStringList("d=d"));
}

TEST_F(DesktopEntriesTest, SubFoldersGiveIdsWithDashes)
{
    app("own/applications/kde/four/konsole.desktop", "Konsole");
    app("system/applications/kde-four-konsole.desktop", "The same");
    EXPECT_EQ(shown(), QStringList("kde-four-konsole=Konsole"));
}

TEST_F(DesktopEntriesTest, AFolderThatLinksToItselfEnds)
{
    app("own/applications/a.desktop", "A");
    QFile::link(root.filePath("own/applications"), root.filePath("own/applications/loop"));
    EXPECT_LT(shown().size(), 10);
    EXPECT_EQ(shown().first(), "a=A");
}

TEST_F(DesktopEntriesTest, OtherFilesAreNoEntries)
{
    app("own/applications/notes.desktop~", "Backup");
    app("own/applications/notes.DESKTOP", "Case");
    app("own/applications/mimeinfo.cache", "Cache");
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(DesktopEntriesTest, OnlyThoseForThisDesktopAreShown)
{
    app("own/applications/a.desktop", "A", "OnlyShowIn=GNOME;\n");
    app("own/applications/b.desktop", "B", "OnlyShowIn=KDE;\n");
    app("own/applications/c.desktop", "C", "NotShowIn=GNOME;\n");
    EXPECT_EQ(shown(), QStringList("a=A"));
}

TEST_F(DesktopEntriesTest, WhatCannotBeStartedIsNotShown)
{
    app("own/applications/a.desktop", "A", "TryExec=/nowhere/at-all\n");
    app("own/applications/b.desktop", "B", "TryExec=sh\n");
    write("own/applications/c.desktop", "[Desktop Entry]\nType=Application\nName=C\n");
    write("own/applications/d.desktop",
          "[Desktop Entry]\nType=Application\nName=D\nDBusActivatable=true\n");
    EXPECT_EQ(shown(), QStringList({"b=B", "d=D"}));
}

TEST_F(DesktopEntriesTest, ProgramsThatAreOutOfSightAreTakenToBeThere)
{
    app("own/applications/a.desktop", "A", "TryExec=/nowhere/at-all\n");
    SessionFolders around = folders();
    around.programsAreHidden = true;
    ASSERT_EQ(DesktopEntries(around).shown().size(), 1U);
    EXPECT_EQ(DesktopEntries(around).shown().front().name, "A");
}

TEST_F(DesktopEntriesTest, AllHoldsTheUndisplayedAsWell)
{
    app("own/applications/a.desktop", "A", "NoDisplay=true\n");
    write("own/applications/b.desktop", "[Desktop Entry]\nHidden=true\n");
    const auto list = DesktopEntries(folders()).all();
    ASSERT_EQ(list->size(), 1U);
    EXPECT_EQ(list->front().path, root.filePath("own/applications/a.desktop"));
}

TEST_F(DesktopEntriesTest, ANewFileIsSeenAtOnce)
{
    app("own/applications/sub/a.desktop", "A");
    DesktopEntries entries(folders());
    const auto first = entries.all();
    app("own/applications/sub/b.desktop", "B");
    EXPECT_EQ(entries.all()->size(), 2U);
    app("system/applications/c.desktop", "C");
    EXPECT_EQ(entries.all()->size(), 3U) << "a folder that was not there before";
    EXPECT_EQ(first->size(), 1U) << "what was handed out stays as it was";
}

TEST_F(DesktopEntriesTest, AFolderThatRestsIsNotReadAgain)
{
    app("own/applications/a.desktop", "A");
    age("own/applications");
    DesktopEntries entries(folders());
    const auto first = entries.all();
    EXPECT_EQ(entries.all(), first);
    app("own/applications/b.desktop", "B");
    EXPECT_EQ(entries.all()->size(), 2U);
}

TEST(SessionFolders, FollowTheEnvironmentInItsOrder)
{
    const SessionFolders folders = SessionFolders::from(environment({
        {"HOME", "/home/ann"},
        {"XDG_DATA_HOME", "/home/ann/data"},
        {"XDG_DATA_DIRS", "/opt/share:/usr/share/:relative::/opt/share"},
        {"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"},
        {"LANG", "de_DE.UTF-8"},
    }));
    EXPECT_EQ(folders.data, QStringList({"/home/ann/data", "/opt/share", "/usr/share"}));
    EXPECT_EQ(folders.desktops, QStringList({"ubuntu", "GNOME"}));
    EXPECT_EQ(folders.locale, "de_DE.UTF-8");
}

TEST(SessionFolders, HaveTheDefaultsOfTheStandard)
{
    const SessionFolders folders =
        SessionFolders::from(environment({{"HOME", "/home/ann"}, {"XDG_DATA_DIRS", ""}}));
    EXPECT_EQ(folders.data,
              QStringList({"/home/ann/.local/share", "/usr/local/share", "/usr/share"}));
    EXPECT_TRUE(folders.desktops.isEmpty());
    EXPECT_TRUE(folders.locale.isEmpty());
}

TEST(SessionFolders, InASandboxAreThoseOfTheSessionAroundIt)
{
    const auto around = [](std::initializer_list<std::pair<QString, QString>> values) {
        return SessionFolders::from(environment(values), true);
    };
    const QStringList system{"/var/lib/flatpak/exports/share", "/run/host/usr/local/share",
                             "/run/host/usr/share"};
    EXPECT_EQ(around({{"HOME", "/home/ann"},
                      {"XDG_DATA_HOME", "/home/ann/.var/app/x/data"},
                      {"XDG_DATA_DIRS", "/app/share:/usr/share"}})
                  .data,
              QStringList("/home/ann/.local/share") + system);
    EXPECT_EQ(around({{"HOME", "/home/ann"}, {"HOST_XDG_DATA_HOME", "/data"}}).data,
              QStringList("/data") + system);
}

TEST(SessionFolders, TheMostGeneralLocaleVariableWins)
{
    const auto locale = [](std::initializer_list<std::pair<QString, QString>> values) {
        return SessionFolders::from(environment(values)).locale;
    };
    EXPECT_EQ(locale({{"LC_ALL", "fr"}, {"LC_MESSAGES", "de"}, {"LANG", "en"}}), "fr");
    EXPECT_EQ(locale({{"LC_ALL", ""}, {"LC_MESSAGES", "de"}, {"LANG", "en"}}), "de");
}

} // namespace velvane
