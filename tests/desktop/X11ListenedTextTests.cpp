#include "X11ListeningFixture.h"

namespace velvane {

TEST_F(X11ListeningTest, TextIsThatOfTheLayout)
{
    setLayout({"us"});
    on.poster.tap(keyY);
    on.poster.chord({shift}, keyA);
    EXPECT_EQ(typed(), "yA");
    setLayout({"fr"});
    on.poster.tap(keyA);
    on.poster.tap(11);
    EXPECT_EQ(typed(), QString::fromUtf8("qé"));
    setLayout({"de"});
    on.poster.tap(keyY);
    on.poster.chord({108}, 24);
    EXPECT_EQ(typed(), "z@");
}

TEST_F(X11ListeningTest, DeadKeysTypeWithTheNext)
{
    setLayout({"de"});
    on.poster.tap(equals);
    on.poster.tap(keyE);
    on.poster.tap(equals);
    on.poster.chord({shift}, keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("éÉ"));
    setLayout({"fr"});
    on.poster.tap(bracket);
    on.poster.tap(keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("ê"));
}

TEST_F(X11ListeningTest, ComposeSequencesType)
{
    setLayout({"us", "-option", "compose:menu"});
    on.poster.tap(135);
    on.poster.tap(keyA);
    on.poster.tap(keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("æ"));
}

TEST_F(X11ListeningTest, ALayoutThatChangesInTheMiddleOfAWordCountsFromThereOn)
{
    setLayout({"us"});
    // Not listened to in between, as when the main thread is busy.
    on.poster.tap(keyY);
    on.poster.tap(keyA);
    setLayout({"fr"});
    on.poster.tap(keyA);
    on.poster.tap(keyY);
    EXPECT_EQ(typed(), "yaqy");
}

} // namespace velvane
