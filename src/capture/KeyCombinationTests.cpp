#include "capture/KeyCombination.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace velvane {

namespace {

// A press as X11 delivers it: the kernel's key number plus 8.
KeyCapture::Outcome press(quint32 evdev, int key, Qt::KeyboardModifiers modifiers = {},
                          bool repeated = false)
{
    const QKeyEvent event(QEvent::KeyPress, key, modifiers, evdev == 0 ? 0 : evdev + 8, 0, 0,
                          QString(), repeated);
    return KeyCapture::pressed(event);
}

KeyCombination recorded(const KeyCapture::Outcome &outcome)
{
    const auto *combination = std::get_if<KeyCombination>(&outcome);
    EXPECT_TRUE(combination);
    return combination ? *combination : KeyCombination{};
}

} // namespace

TEST(KeyCapture, CommandShiftFourIsKey21)
{
    const auto keys = recorded(press(5, Qt::Key_Dollar, Qt::MetaModifier | Qt::ShiftModifier));
    EXPECT_EQ(keys.keyCode, 21);
    EXPECT_EQ(keys.modifiers, 0x120000U);
}

TEST(KeyCapture, CommandCIsKey8WithItsCharacterInUpperCase)
{
    const auto keys = recorded(press(46, Qt::Key_C, Qt::MetaModifier));
    EXPECT_EQ(keys.keyCode, 8);
    EXPECT_EQ(keys.modifiers, 0x100000U);
    EXPECT_EQ(keys.characters, "C");
}

TEST(KeyCapture, CtrlIsControlAndAltIsOption)
{
    EXPECT_EQ(recorded(press(46, Qt::Key_C, Qt::ControlModifier)).modifiers, 0x40000U);
    EXPECT_EQ(recorded(press(46, Qt::Key_C, Qt::AltModifier)).modifiers, 0x80000U);
}

TEST(KeyCapture, ABareKeyIsACombinationToo)
{
    const auto keys = recorded(press(46, Qt::Key_C));
    EXPECT_EQ(keys, (KeyCombination{.keyCode = 8, .modifiers = 0, .characters = "C"}));
}

TEST(KeyCapture, TheKeypadAndTheThirdLevelAddNoModifier)
{
    EXPECT_EQ(recorded(press(76, Qt::Key_5, Qt::KeypadModifier)),
              (KeyCombination{.keyCode = 87, .modifiers = 0, .characters = "5"}));
    EXPECT_EQ(recorded(press(18, 0x20ac, Qt::GroupSwitchModifier)).modifiers, 0U);
}

TEST(KeyCapture, CapsLockAndFunctionAddNothing)
{
    // All that the server can say is held or locked, of which the toolkit names but Ctrl.
    constexpr quint32 everything = 0xff;
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, 46 + 8, 0, everything);
    EXPECT_EQ(recorded(KeyCapture::pressed(event)).modifiers, 0x40000U);
    // Function has a number beyond those of the server's keys, where it comes at all.
    EXPECT_TRUE(std::holds_alternative<KeyCapture::Ignored>(press(464, Qt::Key_unknown)));
}

TEST(KeyCapture, EscapeCancelsWhateverIsHeld)
{
    EXPECT_TRUE(std::holds_alternative<KeyCapture::Cancelled>(press(1, Qt::Key_Escape)));
    EXPECT_TRUE(std::holds_alternative<KeyCapture::Cancelled>(
        press(1, Qt::Key_Escape, Qt::MetaModifier | Qt::ShiftModifier)));
}

TEST(KeyCapture, ModifiersAloneAreWaitedThrough)
{
    for (const auto key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta,
                           Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_AltGr, Qt::Key_CapsLock})
        EXPECT_TRUE(std::holds_alternative<KeyCapture::Ignored>(press(42, key))) << key;
}

TEST(KeyCapture, RepeatsOfTheKeyThatStartedItAreWaitedThrough)
{
    EXPECT_TRUE(std::holds_alternative<KeyCapture::Ignored>(press(57, Qt::Key_Space, {}, true)));
}

TEST(KeyCapture, KeysWithoutANumberAreWaitedThrough)
{
    EXPECT_TRUE(std::holds_alternative<KeyCapture::Ignored>(press(113, Qt::Key_VolumeMute)));
}

TEST(KeyCapture, ThePlaceCountsAndNotTheLayoutsCharacter)
{
    // The key right of Tab on a French keyboard.
    EXPECT_EQ(recorded(press(16, Qt::Key_A, Qt::ControlModifier)),
              (KeyCombination{.keyCode = 12, .modifiers = 0x40000, .characters = "A"}));
}

TEST(KeyCapture, KeysThatTypeNothingHaveNoCharacters)
{
    EXPECT_EQ(recorded(press(103, Qt::Key_Up)),
              (KeyCombination{.keyCode = KeyCode::upArrow, .modifiers = 0, .characters = ""}));
    EXPECT_EQ(recorded(press(15, Qt::Key_Backtab, Qt::ShiftModifier)).keyCode, KeyCode::tab);
    EXPECT_EQ(recorded(press(26, Qt::Key_Dead_Circumflex)).characters, "");
}

TEST(KeyCapture, AKeyWithoutAPlaceIsTakenByItsName)
{
    EXPECT_EQ(recorded(press(0, Qt::Key_C)).keyCode, 8);
    EXPECT_EQ(recorded(press(0, Qt::Key_Z)).keyCode, 6);
    EXPECT_EQ(recorded(press(0, Qt::Key_0)).keyCode, 29);
    EXPECT_EQ(recorded(press(0, Qt::Key_F12)).keyCode, KeyCode::f12);
    EXPECT_EQ(recorded(press(0, Qt::Key_Return)).keyCode, KeyCode::returnKey);
}

TEST(KeyCapture, NamesAndPlacesAgree)
{
    // The keys of a US keyboard by the kernel's number.
    const QHash<quint32, int> keys{
        {16, Qt::Key_Q},         {17, Qt::Key_W},     {18, Qt::Key_E},
        {19, Qt::Key_R},         {20, Qt::Key_T},     {21, Qt::Key_Y},
        {22, Qt::Key_U},         {23, Qt::Key_I},     {24, Qt::Key_O},
        {25, Qt::Key_P},         {30, Qt::Key_A},     {31, Qt::Key_S},
        {32, Qt::Key_D},         {33, Qt::Key_F},     {34, Qt::Key_G},
        {35, Qt::Key_H},         {36, Qt::Key_J},     {37, Qt::Key_K},
        {38, Qt::Key_L},         {44, Qt::Key_Z},     {45, Qt::Key_X},
        {46, Qt::Key_C},         {47, Qt::Key_V},     {48, Qt::Key_B},
        {49, Qt::Key_N},         {50, Qt::Key_M},     {2, Qt::Key_1},
        {6, Qt::Key_5},          {7, Qt::Key_6},      {11, Qt::Key_0},
        {12, Qt::Key_Minus},     {13, Qt::Key_Equal}, {26, Qt::Key_BracketLeft},
        {39, Qt::Key_Semicolon}, {53, Qt::Key_Slash}, {64, Qt::Key_F6}};
    for (auto key = keys.begin(); key != keys.end(); ++key)
        EXPECT_EQ(recorded(press(key.key(), *key)).keyCode, recorded(press(0, *key)).keyCode)
            << key.key();
}

} // namespace velvane
