#include "platform/x11/X11KeyMap.h"
#include "platform/x11/X11Symbols.h"
#include "platform/x11/X11Typing.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

constexpr xcb_keycode_t digit2 = 11, keyQ = 24, keyE = 26, keyY = 29, keyA = 38, shift = 50;
constexpr xcb_keycode_t thirdLevel = 92;

// A layout's map as the packaged descriptions have it.
X11KeyMap keyMap(const char *layouts, xkb_layout_index_t group = 0, const char *locked = nullptr,
                 const char *options = "")
{
    xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    const xkb_rule_names names{"evdev", "pc105", layouts, "", options};
    xkb_keymap *map = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    xkb_context_unref(context);
    EXPECT_NE(map, nullptr);
    const xkb_mod_mask_t mask = locked ? 1U << xkb_keymap_mod_get_index(map, locked) : 0;
    X11KeyMap read(map, group, mask);
    xkb_keymap_unref(map);
    return read;
}

std::optional<KeyChord> chordOf(const X11KeyMap &map, const QString &character)
{
    return map.chord(symbolsOf(character).at(0));
}

} // namespace

TEST(X11KeyMap, LettersAreKeysAndCapitalsTakeShift)
{
    const X11KeyMap map = keyMap("us");
    EXPECT_EQ(chordOf(map, "a"), KeyChord({keyA}));
    EXPECT_EQ(chordOf(map, "A"), KeyChord({shift, keyA}));
    EXPECT_EQ(chordOf(map, "@"), KeyChord({shift, digit2}));
}

TEST(X11KeyMap, TheLayoutDecidesWhereACharacterLies)
{
    EXPECT_EQ(chordOf(keyMap("de"), "z"), KeyChord({keyY}));
    EXPECT_EQ(chordOf(keyMap("fr"), "a"), KeyChord({keyQ}));
    EXPECT_EQ(chordOf(keyMap("fr"), QString::fromUtf8("é")), KeyChord({digit2}));
}

TEST(X11KeyMap, TheThirdLevelTakesItsOwnKey)
{
    EXPECT_EQ(chordOf(keyMap("de"), "@"), KeyChord({thirdLevel, keyQ}));
    EXPECT_EQ(chordOf(keyMap("de"), QString::fromUtf8("€")), KeyChord({thirdLevel, keyE}));
}

TEST(X11KeyMap, TheActiveOneOfSeveralLayoutsCounts)
{
    EXPECT_TRUE(chordOf(keyMap("us,ru", 0), "a"));
    EXPECT_FALSE(chordOf(keyMap("us,ru", 1), "a"));
    EXPECT_TRUE(chordOf(keyMap("us,ru", 1), QString::fromUtf8("ж")));
}

TEST(X11KeyMap, DeadKeysAreNoCharacters)
{
    EXPECT_FALSE(chordOf(keyMap("de"), "^"));
    EXPECT_TRUE(chordOf(keyMap("us"), "^"));
}

TEST(X11KeyMap, DigitsAreNeverTakenFromTheKeypad)
{
    const X11KeyMap map = keyMap("fr", 0, "Mod2");
    EXPECT_EQ(chordOf(map, "2"), KeyChord({shift, digit2}));
    EXPECT_EQ(keyMap("us").chord(XKB_KEY_KP_Home), std::nullopt);
}

TEST(X11KeyMap, ModifiersAreFoundWhereverTheLayoutHasThem)
{
    constexpr quint64 all =
        Modifier::control | Modifier::option | Modifier::shift | Modifier::command;
    EXPECT_EQ(keyMap("us").modifierKeys(all), KeyChord({37, 64, 50, 133}));
    EXPECT_EQ(keyMap("us").modifierKeys(0x10000), KeyChord());
    EXPECT_EQ(keyMap("us", 0, nullptr, "ctrl:swapcaps").modifierKeys(Modifier::control),
              KeyChord({66}));
}

TEST(X11Symbols, ALineBreakIsReturnOnce)
{
    EXPECT_EQ(symbolsOf("\n"), std::vector<xkb_keysym_t>{XKB_KEY_Return});
    EXPECT_EQ(symbolsOf("\r\n"), std::vector<xkb_keysym_t>{XKB_KEY_Return});
    EXPECT_EQ(symbolsOf("\n\n").size(), 2U);
    EXPECT_EQ(symbolsOf("\t"), std::vector<xkb_keysym_t>{XKB_KEY_Tab});
}

TEST(X11Symbols, ControlCharactersWithoutAKeyAreLeftOut)
{
    EXPECT_TRUE(symbolsOf(QString(QChar(0))).empty());
    EXPECT_TRUE(symbolsOf(QString(QChar(1))).empty());
    EXPECT_TRUE(symbolsOf({}).empty());
}

TEST(X11Symbols, ACharacterOfSeveralCodePointsGivesThemInOrder)
{
    EXPECT_EQ(symbolsOf(QString::fromUtf8("🇩🇪")),
              (std::vector<xkb_keysym_t>{0x0101f1e9, 0x0101f1ea}));
    EXPECT_EQ(symbolsOf(QString::fromUtf8("👩‍💻")),
              (std::vector<xkb_keysym_t>{0x0101f469, 0x0100200d, 0x0101f4bb}));
}

TEST(X11Typing, OnlyWhatTheLayoutLacksIsLentAndEachOnce)
{
    const auto symbols = symbolsOf(QString::fromUtf8("añbñ日a"));
    EXPECT_EQ(symbolsToLend(symbols, keyMap("us"), 10), symbolsOf(QString::fromUtf8("ñ日")));
    EXPECT_TRUE(symbolsToLend(symbolsOf("plain"), keyMap("us"), 10).empty());
}

TEST(X11Typing, ALendingEndsBeforeTheFirstSymbolThatDoesNotFit)
{
    const auto symbols = symbolsOf(QString::fromUtf8("日本日語本"));
    EXPECT_EQ(symbolsToLend(symbols, keyMap("us"), 2), symbolsOf(QString::fromUtf8("日本")));
    EXPECT_TRUE(symbolsToLend(symbols, keyMap("us"), 0).empty());
}

} // namespace velvane
