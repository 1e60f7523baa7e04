#pragma once

#include "platform/DesktopShell.h"

#include <gtest/gtest.h>

namespace velvane {

/// What every DesktopShell keeps of our windows. A stage has a window of ours in front, with the
/// keyboard, and another program's; it gives `shell()`, `areShown()`, whether ours are on the
/// screen, and `haveKeyboard()`, each as it is once all that was asked is done.
template <typename Stage>
class ShellContract : public testing::Test {
protected:
    DesktopShell &shell() { return stage.shell(); }

    Stage stage;
};

TYPED_TEST_SUITE_P(ShellContract);

TYPED_TEST_P(ShellContract, HiddenWindowsAreOffTheScreenWithoutTheKeyboard)
{
    ASSERT_TRUE(this->stage.areShown());
    ASSERT_TRUE(this->stage.haveKeyboard());
    this->shell().hide();
    EXPECT_FALSE(this->stage.areShown());
    EXPECT_FALSE(this->stage.haveKeyboard());
}

TYPED_TEST_P(ShellContract, UnhiddenTheyAreBackWithoutTheKeyboard)
{
    this->shell().hide();
    this->shell().unhide();
    EXPECT_TRUE(this->stage.areShown());
    EXPECT_FALSE(this->stage.haveKeyboard());
}

TYPED_TEST_P(ShellContract, ActivatedTheyAreBackWithTheKeyboard)
{
    this->shell().hide();
    this->shell().activate();
    EXPECT_TRUE(this->stage.areShown());
    EXPECT_TRUE(this->stage.haveKeyboard());
}

TYPED_TEST_P(ShellContract, UnhidingWhatIsShownDoesNothing)
{
    this->shell().unhide();
    EXPECT_TRUE(this->stage.areShown());
    EXPECT_TRUE(this->stage.haveKeyboard());
}

TYPED_TEST_P(ShellContract, HidingTwiceIsHidingOnce)
{
    this->shell().hide();
    this->shell().hide();
    EXPECT_FALSE(this->stage.areShown());
    this->shell().unhide();
    EXPECT_TRUE(this->stage.areShown());
}

TYPED_TEST_P(ShellContract, TheLastOfSeveralCallsDecides)
{
    this->shell().hide();
    this->shell().unhide();
    this->shell().hide();
    EXPECT_FALSE(this->stage.areShown());
    this->shell().unhide();
    this->shell().hide();
    this->shell().activate();
    EXPECT_TRUE(this->stage.areShown());
    EXPECT_TRUE(this->stage.haveKeyboard());
}

TYPED_TEST_P(ShellContract, UnhidingLeavesTheKeyboardThatActivatingHasBrought)
{
    this->shell().hide();
    this->shell().unhide();
    this->shell().activate();
    this->shell().unhide();
    EXPECT_TRUE(this->stage.haveKeyboard());
}

REGISTER_TYPED_TEST_SUITE_P(ShellContract, HiddenWindowsAreOffTheScreenWithoutTheKeyboard,
                            UnhiddenTheyAreBackWithoutTheKeyboard,
                            ActivatedTheyAreBackWithTheKeyboard, UnhidingWhatIsShownDoesNothing,
                            HidingTwiceIsHidingOnce, TheLastOfSeveralCallsDecides,
                            UnhidingLeavesTheKeyboardThatActivatingHasBrought);

} // namespace velvane
