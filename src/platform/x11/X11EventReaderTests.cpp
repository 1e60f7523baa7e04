#include "platform/x11/X11EventReader.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

constexpr uint16_t shift = XCB_MOD_MASK_SHIFT, lock = XCB_MOD_MASK_LOCK;
constexpr uint16_t control = XCB_MOD_MASK_CONTROL, alt = XCB_MOD_MASK_1;
constexpr uint16_t numLock = XCB_MOD_MASK_2, super = XCB_MOD_MASK_4, altGr = XCB_MOD_MASK_5;
constexpr uint16_t secondGroup = 1 << 13;

// X codes of keys by what an American keyboard writes on them.
constexpr uint8_t keyA = 38, keyC = 54, keyE = 26, keyO = 32, keyQ = 24, keyZ = 52;
constexpr uint8_t apostrophe = 48, bracket = 34, equals = 21, grave = 49;

X11KeyboardMap keyboardMap(const char *layouts, const char *options = "")
{
    xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    const xkb_rule_names names{"evdev", "pc105", layouts, "", options};
    X11KeyboardMap map(xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    xkb_context_unref(context);
    EXPECT_FALSE(map.isNull());
    return map;
}

class X11EventReaderTest : public testing::Test {
protected:
    std::optional<InputEvent> read(const X11HeardEvent &event)
    {
        return reader.read(event, space, map);
    }
    std::optional<InputEvent> press(uint8_t key, uint16_t state = 0)
    {
        return read({XCB_KEY_PRESS, key, state, 0, 0, 0});
    }
    // What a press types; a mark when it is no event at all.
    QString typed(uint8_t key, uint16_t state = 0)
    {
        const auto event = press(key, state);
        return event ? event->text : QStringLiteral("(none)");
    }

    X11RootSpace space;
    X11KeyboardMap map = keyboardMap("us");
    X11EventReader reader{"en_US.UTF-8"};
};

constexpr const char *none = "(none)";

} // namespace

TEST_F(X11EventReaderTest, PlacesAreRelativeToThePrimaryDisplay)
{
    space = X11RootSpace({{"right", {800, 20, 1024, 768}, true}});
    const auto event = read({XCB_MOTION_NOTIFY, 0, 0, 100, 50, 0});
    ASSERT_TRUE(event);
    EXPECT_EQ(event->kind, Kind::mouseMoved);
    EXPECT_EQ(event->point, QPointF(-700, 30));
}

TEST_F(X11EventReaderTest, OnlyTheLeftButtonDrags)
{
    const auto motion = [&](uint16_t state) { return read({XCB_MOTION_NOTIFY, 0, state}); };
    ASSERT_TRUE(motion(XCB_BUTTON_MASK_1));
    EXPECT_EQ(motion(XCB_BUTTON_MASK_1)->kind, Kind::leftMouseDragged);
    EXPECT_EQ(motion(XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_3)->kind, Kind::leftMouseDragged);
    EXPECT_FALSE(motion(XCB_BUTTON_MASK_3));
    EXPECT_FALSE(motion(XCB_BUTTON_MASK_2));
    ASSERT_TRUE(motion(shift | numLock));
    EXPECT_EQ(motion(shift | numLock)->kind, Kind::mouseMoved);
}

TEST_F(X11EventReaderTest, ButtonsOtherThanLeftAndRightAreNotReported)
{
    const auto kind = [&](uint8_t type, uint8_t button) {
        const auto event = read({type, button});
        return event ? std::optional(event->kind) : std::nullopt;
    };
    EXPECT_EQ(kind(XCB_BUTTON_PRESS, 1), Kind::leftMouseDown);
    EXPECT_EQ(kind(XCB_BUTTON_RELEASE, 1), Kind::leftMouseUp);
    EXPECT_EQ(kind(XCB_BUTTON_PRESS, 3), Kind::rightMouseDown);
    EXPECT_EQ(kind(XCB_BUTTON_RELEASE, 3), Kind::rightMouseUp);
    for (const uint8_t button : {2, 4, 5, 6, 7, 8, 9}) {
        EXPECT_FALSE(kind(XCB_BUTTON_PRESS, button));
        EXPECT_FALSE(kind(XCB_BUTTON_RELEASE, button));
    }
}

TEST_F(X11EventReaderTest, TheFourModifiersAreReportedAndNoOther)
{
    const auto event = press(keyC, shift | control | alt | super | lock | numLock | altGr);
    ASSERT_TRUE(event);
    EXPECT_EQ(event->modifiers,
              Modifier::shift | Modifier::control | Modifier::option | Modifier::command);
    EXPECT_EQ(press(keyC, lock | numLock | altGr)->modifiers, 0U);
}

TEST_F(X11EventReaderTest, AKeyKeepsItsNumberWhateverTheLayout)
{
    ASSERT_TRUE(press(keyQ));
    EXPECT_EQ(press(keyQ)->keyCode, 12);
    map = keyboardMap("fr");
    EXPECT_EQ(press(keyQ)->keyCode, 12);
    EXPECT_EQ(press(keyQ)->text, "a");
}

TEST_F(X11EventReaderTest, ShiftAndCapsLockChangeTheText)
{
    EXPECT_EQ(typed(keyA), "a");
    EXPECT_EQ(typed(keyA, shift), "A");
    EXPECT_EQ(typed(keyA, lock), "A");
    EXPECT_EQ(typed(keyA, lock | shift), "a");
}

TEST_F(X11EventReaderTest, TheThirdLevelTypes)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(keyQ, altGr), "@");
    EXPECT_EQ(typed(keyE, altGr), QString::fromUtf8("€"));
}

TEST_F(X11EventReaderTest, TheEventsOwnGroupChoosesTheLayout)
{
    map = keyboardMap("us,gr");
    EXPECT_EQ(typed(keyA), "a");
    EXPECT_EQ(typed(keyA, secondGroup), QString::fromUtf8("α"));
    EXPECT_EQ(typed(keyA), "a");
}

TEST_F(X11EventReaderTest, TheKeypadTypesDigitsUnderNumLockOnly)
{
    constexpr uint8_t keypad7 = 79;
    EXPECT_EQ(typed(keypad7, numLock), "7");
    EXPECT_EQ(typed(keypad7), "");
}

TEST_F(X11EventReaderTest, CommandsTypeNothing)
{
    for (const uint16_t state : {control, alt, super})
        EXPECT_EQ(typed(keyC, state), "");
}

TEST_F(X11EventReaderTest, ModifierKeysAreNoEvents)
{
    // Shift, Control, Alt, Super, Caps Lock and Num Lock.
    for (const uint8_t key : {50, 62, 37, 105, 64, 133, 66, 77})
        EXPECT_FALSE(press(key)) << int(key);
    map = keyboardMap("de");
    EXPECT_FALSE(press(108)) << "AltGr";
}

TEST_F(X11EventReaderTest, ArrowsAndFunctionKeysHaveNumbersAndNoText)
{
    EXPECT_EQ(typed(111), "");
    EXPECT_EQ(press(111)->keyCode, KeyCode::upArrow);
    EXPECT_EQ(typed(67), "");
    EXPECT_EQ(press(67)->keyCode, KeyCode::f1);
}

TEST_F(X11EventReaderTest, ControlKeysTypeControlCharacters)
{
    EXPECT_EQ(typed(36), "\r");
    EXPECT_EQ(typed(23), "\t");
    EXPECT_EQ(typed(9), "\x1b");
    EXPECT_EQ(typed(119), "\x7f");
}

TEST_F(X11EventReaderTest, AKeyWithNeitherSymbolNorPlaceIsReportedAsSuch)
{
    constexpr uint8_t unused = 97 + 120;
    const auto event = press(unused);
    ASSERT_TRUE(event);
    EXPECT_EQ(event->text, "");
    EXPECT_EQ(event->keyCode, InputEvent::noKey);
}

TEST_F(X11EventReaderTest, WithoutAMapKeysHaveNumbersAndNoText)
{
    map = X11KeyboardMap(nullptr);
    EXPECT_EQ(typed(keyA), "");
    EXPECT_EQ(press(keyZ)->keyCode, 6);
}

TEST_F(X11EventReaderTest, ADeadKeyTypesWithTheNext)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(equals), none) << "dead acute";
    EXPECT_EQ(typed(keyE), QString::fromUtf8("é"));
    EXPECT_EQ(typed(keyE), "e");
    map = keyboardMap("fr");
    EXPECT_EQ(typed(bracket), none) << "dead circumflex";
    EXPECT_EQ(typed(keyO, shift), QString::fromUtf8("Ô"));
}

TEST_F(X11EventReaderTest, ShiftBetweenADeadKeyAndItsLetterDoesNotMatter)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(equals), none);
    EXPECT_EQ(typed(50), none) << "Shift goes down";
    EXPECT_EQ(typed(keyE, shift), QString::fromUtf8("É"));
}

TEST_F(X11EventReaderTest, ComposeSequencesType)
{
    constexpr uint8_t menu = 135;
    map = keyboardMap("us", "compose:menu");
    EXPECT_EQ(typed(menu), none);
    EXPECT_EQ(typed(apostrophe, shift), none);
    EXPECT_EQ(typed(keyO), QString::fromUtf8("ö"));
}

TEST_F(X11EventReaderTest, WhatFitsNoSequenceStandsAlone)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(equals), none);
    EXPECT_EQ(typed(keyQ), "q");
    EXPECT_EQ(typed(equals), none);
    EXPECT_EQ(typed(9), "\x1b") << "Esc ends it and counts";
    EXPECT_EQ(typed(keyE), "e");
}

TEST_F(X11EventReaderTest, ADeadKeyMayBreakOneSequenceAndBeginAnother)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(grave), none) << "dead circumflex";
    EXPECT_EQ(typed(bracket, altGr), none) << "dead diaeresis";
    EXPECT_EQ(typed(keyE), QString::fromUtf8("ë"));
}

TEST_F(X11EventReaderTest, ACommandEndsASequence)
{
    map = keyboardMap("de");
    EXPECT_EQ(typed(equals), none);
    EXPECT_EQ(typed(keyC, control), "");
    EXPECT_EQ(typed(keyE), "e");
}

TEST_F(X11EventReaderTest, ALanguageWithoutUnicodeComposesAllTheSame)
{
    reader = X11EventReader("C");
    map = keyboardMap("de");
    EXPECT_EQ(typed(equals), none);
    EXPECT_EQ(typed(keyE), QString::fromUtf8("é"));
}

} // namespace velvane
