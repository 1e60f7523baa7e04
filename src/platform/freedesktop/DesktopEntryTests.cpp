#include "platform/freedesktop/DesktopEntry.h"

#include "support/Print.h"

#include <gtest/gtest.h>

#include <random>

namespace velvane {

namespace {

const QByteArray head = "[Desktop Entry]\nType=Application\nName=Notes\nExec=notes %U\n";

DesktopEntry parsed(const QByteArray &bytes, const QString &locale = {})
{
    return parseDesktopEntry(bytes, locale).value_or(DesktopEntry());
}

struct LocaleSample {
    const char *locale;
    const char *name;
};

} // namespace

TEST(DesktopEntry, TellsNameProgramAndIcon)
{
    const DesktopEntry entry = parsed(head
                                      + "Icon=org.example.Notes\nStartupWMClass=Notes\n"
                                        "TryExec=/usr/bin/notes\nDBusActivatable=true\n");
    EXPECT_EQ(entry.name, "Notes");
    EXPECT_EQ(entry.localizedName, "Notes");
    EXPECT_EQ(entry.exec, "notes %U");
    EXPECT_EQ(entry.icon, "org.example.Notes");
    EXPECT_EQ(entry.startupWmClass, "Notes");
    EXPECT_EQ(entry.tryExec, "/usr/bin/notes");
    EXPECT_TRUE(entry.dBusActivatable);
    EXPECT_FALSE(entry.noDisplay);
    EXPECT_FALSE(entry.hidden);
}

TEST(DesktopEntry, OnlyItsOwnGroupCounts)
{
    const DesktopEntry entry = parsed("[Desktop Action new]\nName=Wrong\n" + head
                                      + "[Desktop Action open]\nName=Open\nIcon=open\n"
                                        "[Desktop Entry]\nName=Again\n");
    EXPECT_EQ(entry.name, "Notes");
    EXPECT_EQ(entry.icon, "");
}

TEST(DesktopEntry, SpacesCommentsAndOtherLineEndsDoNotMatter)
{
    const DesktopEntry entry =
        parsed("# a comment\r\n\r\n[Desktop Entry]\r\nType = Application\r\n"
               "#Name=Wrong\r\nName =  Two Words  \r\nno key here\r\n=x\r\n");
    EXPECT_EQ(entry.name, "Two Words");
}

TEST(DesktopEntry, OfAKeyThatComesTwiceTheLastCounts)
{
    EXPECT_EQ(parsed(head + "Name=Other\n").name, "Other");
}

TEST(DesktopEntry, EscapesAreResolved)
{
    EXPECT_EQ(parsed(head + "Name=a\\sb\\tc\\nd\\\\e\\qf\\\n").name, "a b\tc\nd\\eqf\\");
    EXPECT_EQ(parsed(head + "NotShowIn=A\\;B;C;;D\n").notShowIn, QStringList({"A;B", "C", "D"}));
}

TEST(DesktopEntry, NamesAreUtf8)
{
    EXPECT_EQ(parsed(head + "Name=Éditeur 文\n").name, QString::fromUtf8("Éditeur 文"));
}

class DesktopEntryLocale : public testing::TestWithParam<LocaleSample> {};

TEST_P(DesktopEntryLocale, ChoosesTheClosestName)
{
    const DesktopEntry entry =
        parsed(head
                   + "Name[de]=Notizen\nName[de_AT]=Zettel\nName[de@euro]=Geld\n"
                     "Name[sr@latin]=Beleske\nName[fr]=\n",
               GetParam().locale);
    EXPECT_EQ(entry.localizedName, GetParam().name);
    EXPECT_EQ(entry.name, "Notes") << "the stored name is the same everywhere";
}

INSTANTIATE_TEST_SUITE_P(
    Locales, DesktopEntryLocale,
    testing::Values(LocaleSample{"de_DE.UTF-8", "Notizen"}, LocaleSample{"de_AT.UTF-8", "Zettel"},
                    LocaleSample{"de_AT.UTF-8@euro", "Zettel"}, LocaleSample{"de_DE@euro", "Geld"},
                    LocaleSample{"de", "Notizen"}, LocaleSample{"sr_RS@latin", "Beleske"},
                    LocaleSample{"sr_RS", "Notes"}, LocaleSample{"fr_FR", "Notes"},
                    LocaleSample{"C", "Notes"}, LocaleSample{"", "Notes"}));

TEST(DesktopEntry, ATranslationWithoutALetterIsNone)
{
    EXPECT_EQ(parsed(head + "Name[de]=\xef\xbb\xbf\n", "de").localizedName, "Notes");
}

TEST(DesktopEntry, WhatDescribesNoApplicationIsNone)
{
    EXPECT_FALSE(parseDesktopEntry("", {}));
    EXPECT_FALSE(parseDesktopEntry("Type=Application\nName=No group\n", {}));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Link\nName=Page\n", {}));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nName=No type\n", {}));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Application\n", {}));
    EXPECT_FALSE(parseDesktopEntry("[desktop entry]\nType=Application\nName=Case\n", {}));
}

TEST(DesktopEntry, AHiddenOneNeedsNothingElse)
{
    const auto entry = parseDesktopEntry("[Desktop Entry]\nHidden=true\n", {});
    ASSERT_TRUE(entry);
    EXPECT_TRUE(entry->hidden);
}

TEST(DesktopEntry, AFileOfMoreThanAMebibyteIsNone)
{
    const QByteArray padding(1024 * 1024 - head.size(), '#');
    EXPECT_TRUE(parseDesktopEntry(head + padding, {}));
    EXPECT_FALSE(parseDesktopEntry(head + padding + '#', {}));
}

TEST(DesktopEntry, NoBytesWhateverMakeItFail)
{
    std::mt19937 random(7);
    static constexpr char letters[] = "[]=;\\\n\r\0#Name Desktop Entry\xff\xc3";
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes = round % 2 ? head : QByteArray();
        for (int i = 0; i < 80; ++i)
            bytes += letters[random() % (sizeof letters - 1)];
        const auto entry = parseDesktopEntry(bytes, "de_DE@x");
        ASSERT_TRUE(!entry || entry->hidden || !entry->name.isEmpty());
    }
}

TEST(DesktopEntry, IsShownUnlessItSaysOtherwise)
{
    EXPECT_TRUE(isShown(parsed(head), {"GNOME"}));
    EXPECT_TRUE(isShown(parsed(head), {}));
    EXPECT_FALSE(isShown(parsed(head + "NoDisplay=true\n"), {}));
    EXPECT_FALSE(isShown(parsed(head + "Hidden=true\n"), {}));
    EXPECT_TRUE(isShown(parsed(head + "NoDisplay=false\n"), {}));
}

TEST(DesktopEntry, IsShownOnlyOnTheDesktopsItNames)
{
    const DesktopEntry only = parsed(head + "OnlyShowIn=GNOME;Unity;\n");
    EXPECT_TRUE(isShown(only, {"GNOME"}));
    EXPECT_TRUE(isShown(only, {"ubuntu", "GNOME"}));
    EXPECT_FALSE(isShown(only, {"KDE"}));
    EXPECT_FALSE(isShown(only, {}));
    const DesktopEntry never = parsed(head + "NotShowIn=KDE;\n");
    EXPECT_FALSE(isShown(never, {"KDE"}));
    EXPECT_TRUE(isShown(never, {"XFCE"}));
    EXPECT_FALSE(isShown(parsed(head + "OnlyShowIn=\n"), {"GNOME"}));
}

TEST(DesktopEntry, OfTwoNamesOfADesktopTheFirstDecides)
{
    const DesktopEntry entry = parsed(head + "OnlyShowIn=Unity;\nNotShowIn=GNOME;\n");
    EXPECT_TRUE(isShown(entry, {"Unity", "GNOME"}));
    EXPECT_FALSE(isShown(entry, {"GNOME", "Unity"}));
}

TEST(ExecLine, NamesTheProgramItStarts)
{
    EXPECT_EQ(programOf("notes %U"), "notes");
    EXPECT_EQ(programOf("/usr/bin/notes --new"), "notes");
    EXPECT_EQ(programOf("  \"/opt/My App/run me\" %f"), "run me");
    EXPECT_EQ(programOf("\"/opt/a\\\"b\" x"), "a\"b");
    EXPECT_EQ(programOf("env LANG=C GTK_THEME=x /usr/bin/notes"), "notes");
    EXPECT_EQ(programOf("env"), "");
    EXPECT_EQ(programOf(""), "");
    EXPECT_EQ(programOf("\"open quote"), "");
    EXPECT_EQ(programOf("\"\" x"), "");
}

TEST(ExecLine, StartsAProgramWithItsArgumentsAsTheyStand)
{
    DesktopEntry entry;
    entry.exec = "notes \"a \\\"quoted\\\" $HOME; rm\" --new  'single'";
    EXPECT_EQ(commandOf(entry),
              QStringList({"notes", "a \"quoted\" $HOME; rm", "--new", "'single'"}));
    entry.exec = "\"\" x";
    EXPECT_EQ(commandOf(entry), QStringList({"", "x"}));
}

TEST(ExecLine, FieldCodesStandForTheEntryAndForNoFiles)
{
    DesktopEntry entry;
    entry.localizedName = "Notizen \"neu\"";
    entry.icon = "notes";
    entry.path = "/usr/share/applications/notes.desktop";
    entry.exec = "notes %U %i --class %c --from %k 100%% --file=%f %d%m";
    EXPECT_EQ(commandOf(entry),
              QStringList({"notes", "--icon", "notes", "--class", "Notizen \"neu\"", "--from",
                           "/usr/share/applications/notes.desktop", "100%", "--file="}));
    entry.icon.clear();
    entry.exec = "notes %i";
    EXPECT_EQ(commandOf(entry), QStringList("notes"));
}

TEST(ExecLine, AnInvalidOneStartsNothing)
{
    DesktopEntry entry;
    for (const char *exec : {"", "   ", "notes %x", "notes %", "notes \"open"}) {
        entry.exec = exec;
        EXPECT_TRUE(commandOf(entry).isEmpty()) << exec;
    }
}

TEST(DesktopEntry, SaysWhereAndInWhatItStarts)
{
    const DesktopEntry entry = parsed(head + "Path=/opt/notes\nTerminal=true\n");
    EXPECT_EQ(entry.folder, "/opt/notes");
    EXPECT_TRUE(entry.terminal);
    EXPECT_FALSE(parsed(head).terminal);
    EXPECT_EQ(parsed(head).folder, "");
}

} // namespace velvane
