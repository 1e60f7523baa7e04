#include "cli/SessionReport.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane::cli {

namespace {

DesktopFact fact(const std::vector<DesktopFact> &report, const QString &what)
{
    for (const DesktopFact &each : report) {
        if (each.what == what)
            return each;
    }
    ADD_FAILURE() << "there is no " << what.toStdString();
    return {};
}

} // namespace

TEST(SessionReport, NamesEveryCapabilityOnceAndBriefly)
{
    SimulatedDesktop desktop;
    QStringList names;
    for (const DesktopFact &each : sessionReport(desktop)) {
        EXPECT_FALSE(each.state.isEmpty()) << each.what.toStdString();
        EXPECT_LT(each.what.size(), 20) << each.what.toStdString();
        EXPECT_FALSE(names.contains(each.what)) << each.what.toStdString();
        names << each.what;
    }
    for (const char *what : {"Display server", "Session", "Input posting", "Input listening",
                             "Screen capture", "Recordings", "H.264 encoder", "Movie files",
                             "Caption font", "Shortcut glyphs", "Emoji", "Language"})
        EXPECT_TRUE(names.contains(what)) << what;
}

TEST(SessionReport, WhatIsNotPermittedHasTheDesktopsRemedy)
{
    SimulatedDesktop desktop;
    EXPECT_EQ(fact(sessionReport(desktop), "Screen capture").remedy, "");
    desktop.permissions().setGranted(Permission::screenRecording, false);
    const DesktopFact denied = fact(sessionReport(desktop), "Screen capture");
    EXPECT_EQ(denied.state, "not here");
    EXPECT_EQ(denied.remedy, desktop.permissions().explanation(Permission::screenRecording));
    EXPECT_NE(denied.remedy, "");
}

TEST(SessionReport, AWaylandSessionHasItsRemedyAndOthersNeedNone)
{
    EXPECT_EQ(sessionKind("x11", "XFCE").state, "X11, XFCE");
    EXPECT_EQ(sessionKind("x11", "XFCE").remedy, "");
    EXPECT_EQ(sessionKind("wayland", "GNOME").state, "Wayland, GNOME");
    EXPECT_TRUE(sessionKind("wayland", "GNOME").remedy.startsWith("Log in with an X11 session"));
    EXPECT_EQ(sessionKind("tty", "").state, "tty");
    EXPECT_EQ(sessionKind("", "").remedy, "");
}

TEST(SessionReport, AMovieFolderThatDoesNotExistYetIsFine)
{
    const QTemporaryDir folder;
    const QString inside = folder.filePath("Movies/Velvane");
    const DesktopFact found = movieFolder(inside);
    EXPECT_TRUE(found.state.startsWith(inside)) << found.state.toStdString();
    EXPECT_TRUE(found.state.endsWith(" free")) << found.state.toStdString();
    EXPECT_FALSE(QDir(inside).exists());
}

TEST(SessionReport, AFileInTheMovieFoldersPlaceIsTold)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("Movies"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const DesktopFact found = movieFolder(folder.filePath("Movies/Velvane"));
    EXPECT_EQ(found.state, folder.filePath("Movies/Velvane") + " cannot be written to");
    EXPECT_TRUE(found.remedy.contains(file.fileName())) << found.remedy.toStdString();
}

TEST(SessionReport, LittleRoomForRecordingsIsTold)
{
    EXPECT_EQ(roomForMovies("/m", qint64(5) << 30).remedy, "");
    EXPECT_EQ(roomForMovies("/m", qint64(5) << 30).state, "/m, 5.00 GiB free");
    EXPECT_NE(roomForMovies("/m", qint64(5) << 20).remedy, "");
    EXPECT_NE(roomForMovies("/m", 0).remedy, "");
    EXPECT_EQ(roomForMovies("/m", -1).state, "/m");
    EXPECT_EQ(roomForMovies("/m", -1).remedy, "");
}

TEST(SessionReport, ACharacterSetThatLosesTextsIsTold)
{
    EXPECT_EQ(locale("de_DE", "UTF-8").remedy, "");
    EXPECT_TRUE(locale("C", "ANSI_X3.4-1968").remedy.contains("UTF-8"));
}

} // namespace velvane::cli
