#pragma once

#include "platform/Screens.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velvane {

/// What every Screens keeps. A stage gives `Screens &screens()` with at least one display and
/// `movePointer(QPointF)`, which returns once the pointer is there.
template <typename Stage>
class ScreensContract : public testing::Test {
protected:
    Screens &screens() { return stage.screens(); }

    Stage stage;
};

TYPED_TEST_SUITE_P(ScreensContract);

TYPED_TEST_P(ScreensContract, ExactlyOneDisplayIsPrimaryAndComesFirst)
{
    const std::vector<Display> displays = this->screens().displays();
    ASSERT_FALSE(displays.empty());
    EXPECT_TRUE(displays.front().primary);
    EXPECT_EQ(std::ranges::count(displays, true, &Display::primary), 1);
}

TYPED_TEST_P(ScreensContract, ThePrimaryDisplayBeginsAtTheOrigin)
{
    EXPECT_EQ(this->screens().primaryDisplay()->frame.topLeft(), QPointF(0, 0));
}

TYPED_TEST_P(ScreensContract, AVisibleAreaIsAPartOfItsFrame)
{
    for (const Display &display : this->screens().displays()) {
        EXPECT_FALSE(display.visible.isEmpty());
        EXPECT_TRUE(display.frame.contains(display.visible));
        EXPECT_GT(display.scale, 0);
    }
}

TYPED_TEST_P(ScreensContract, TheMainDisplayIsOneOfThem)
{
    const auto main = this->screens().mainDisplay();
    ASSERT_TRUE(main);
    EXPECT_EQ(std::ranges::count(this->screens().displays(), main->frame, &Display::frame), 1);
}

TYPED_TEST_P(ScreensContract, ThePointerIsWhereItWasMoved)
{
    this->stage.movePointer({123, 45});
    EXPECT_EQ(this->screens().pointer(), QPointF(123, 45));
    this->stage.movePointer({0, 0});
    EXPECT_EQ(this->screens().pointer(), QPointF(0, 0));
}

TYPED_TEST_P(ScreensContract, NothingIsMissing)
{
    EXPECT_TRUE(this->screens().missing().isEmpty());
}

REGISTER_TYPED_TEST_SUITE_P(ScreensContract, ExactlyOneDisplayIsPrimaryAndComesFirst,
                            ThePrimaryDisplayBeginsAtTheOrigin, AVisibleAreaIsAPartOfItsFrame,
                            TheMainDisplayIsOneOfThem, ThePointerIsWhereItWasMoved,
                            NothingIsMissing);

} // namespace velvane
