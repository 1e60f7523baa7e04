#include "model/Shortcut.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(Shortcut, GlyphsStandInTheConventionalOrder)
{
    const quint64 all = Modifier::shift | Modifier::control | Modifier::option | Modifier::command;
    EXPECT_EQ(Shortcut::modifierGlyphs(all), QString::fromUtf8("⌃⌥⇧⌘"));
}

TEST(Shortcut, BitsOfOtherKeysShowNothing)
{
    EXPECT_EQ(Shortcut::modifierGlyphs(0x10000 | 0x200000 | 1), "");
}

TEST(Shortcut, EveryNamedKeyHasItsLabel)
{
    const QMap<quint16, QString> expected{
        {49, "Space"},   {51, "\u232B"},  {117, "\u2326"}, {36, "\u21A9"},  {76, "\u2305"},
        {48, "\u21E5"},  {53, "\u238B"},  {123, "\u2190"}, {124, "\u2192"}, {125, "\u2193"},
        {126, "\u2191"}, {115, "\u2196"}, {119, "\u2198"}, {116, "\u21DE"}, {121, "\u21DF"},
        {122, "F1"},     {120, "F2"},     {99, "F3"},      {118, "F4"},     {96, "F5"},
        {97, "F6"},      {98, "F7"},      {100, "F8"},     {101, "F9"},     {109, "F10"},
        {103, "F11"},    {111, "F12"}};
    ASSERT_EQ(expected.size(), 27);
    EXPECT_EQ(Shortcut::specialKeyLabels(), expected);
}

TEST(Shortcut, KeysWithACharacterHaveNoLabel)
{
    EXPECT_EQ(Shortcut::specialKeyLabel(0), "");
    EXPECT_EQ(Shortcut::specialKeyLabel(65535), "");
}

} // namespace velvane
