#include "base/KeyPosition.h"

#include "base/KeyCode.h"

#include <gtest/gtest.h>

#include <set>

namespace velvane {

TEST(KeyPosition, TheKernelsKeysHaveTheirStoredNumbers)
{
    EXPECT_EQ(KeyPosition::keyCode(30), 0); // A
    EXPECT_EQ(KeyPosition::keyCode(46), 8); // C
    EXPECT_EQ(KeyPosition::keyCode(5), 21); // 4
    EXPECT_EQ(KeyPosition::keyCode(28), KeyCode::returnKey);
    EXPECT_EQ(KeyPosition::keyCode(96), KeyCode::keypadEnter);
    EXPECT_EQ(KeyPosition::keyCode(103), KeyCode::upArrow);
    EXPECT_EQ(KeyPosition::keyCode(88), KeyCode::f12);
}

TEST(KeyPosition, ModifiersAndKeysOfNoAnsiKeyboardHaveNone)
{
    for (const quint32 evdev : {0U, 29U, 42U, 54U, 56U, 58U, 97U, 100U, 125U, 126U, 113U, 5000U})
        EXPECT_FALSE(KeyPosition::keyCode(evdev)) << evdev;
}

TEST(KeyPosition, EveryNumberLeadsBackToItsKey)
{
    std::set<quint16> seen;
    for (quint32 evdev = 0; evdev < 256; ++evdev) {
        const auto code = KeyPosition::keyCode(evdev);
        if (!code)
            continue;
        EXPECT_TRUE(seen.insert(*code).second) << evdev;
        EXPECT_EQ(KeyPosition::evdev(*code), evdev);
    }
    // 26 letters, 10 digits, 11 signs and the one beside Shift; 20 function keys; 18 of the keypad;
    // Escape, Tab, Space, Return, Backspace; 10 of the two blocks above and with the arrows.
    EXPECT_EQ(seen.size(), 26U + 10 + 12 + 20 + 18 + 5 + 10);
}

TEST(KeyPosition, EveryNamedKeyHasAPosition)
{
    for (const quint16 code : {KeyCode::returnKey,
                               KeyCode::tab,
                               KeyCode::space,
                               KeyCode::backspace,
                               KeyCode::escape,
                               KeyCode::keypadEnter,
                               KeyCode::f1,
                               KeyCode::f2,
                               KeyCode::f3,
                               KeyCode::f4,
                               KeyCode::f5,
                               KeyCode::f6,
                               KeyCode::f7,
                               KeyCode::f8,
                               KeyCode::f9,
                               KeyCode::f10,
                               KeyCode::f11,
                               KeyCode::f12,
                               KeyCode::home,
                               KeyCode::end,
                               KeyCode::pageUp,
                               KeyCode::pageDown,
                               KeyCode::forwardDelete,
                               KeyCode::leftArrow,
                               KeyCode::rightArrow,
                               KeyCode::upArrow,
                               KeyCode::downArrow})
        EXPECT_TRUE(KeyPosition::evdev(code)) << code;
}

} // namespace velvane
