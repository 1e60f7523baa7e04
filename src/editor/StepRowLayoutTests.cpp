#include "editor/StepRowLayout.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(StepRowLayout, ARowIs34HighAndASectionLeavesRoomAboveItsHeading)
{
    EXPECT_EQ(StepRowLayout::height(false, false), 34);
    EXPECT_EQ(StepRowLayout::height(true, false), 39);
    EXPECT_EQ(StepRowLayout::height(true, true), 34);
}

TEST(StepRowLayout, AStepBeforeAnySectionIsNotIndented)
{
    const auto layout = StepRowLayout::of({0, 0, 300, 34}, {.durationWidth = 20});
    EXPECT_EQ(layout.number, QRect(6, 0, 26, 34));
    EXPECT_EQ(layout.tile, QRect(38, 6, 22, 22));
    EXPECT_EQ(layout.summary.left(), 68);
    EXPECT_EQ(layout.duration, QRect(259, 0, 28, 34));
}

TEST(StepRowLayout, AStepOfASectionIsIndentedByTen)
{
    const auto layout = StepRowLayout::of({0, 0, 300, 34}, {.isIndented = true});
    EXPECT_EQ(layout.tile.left(), 48);
    EXPECT_EQ(layout.summary.left(), 78);
}

TEST(StepRowLayout, ARevealedRowHasItsButtonsBeforeTheDuration)
{
    const auto layout = StepRowLayout::of({0, 0, 300, 34}, {.isRevealed = true});
    EXPECT_EQ(layout.run.size(), QSize(22, 22));
    EXPECT_EQ(layout.remove.left(), layout.run.right() + 1);
    EXPECT_LT(layout.remove.right(), layout.duration.left());
    EXPECT_LT(layout.summary.right(), layout.run.left());
}

TEST(StepRowLayout, InANarrowListTheButtonsReplaceTheDuration)
{
    const auto revealed = StepRowLayout::of({0, 0, 279, 34}, {.isRevealed = true});
    EXPECT_TRUE(revealed.duration.isEmpty());
    EXPECT_FALSE(revealed.remove.isEmpty());

    const auto plain = StepRowLayout::of({0, 0, 279, 34}, {});
    EXPECT_FALSE(plain.duration.isEmpty());
    EXPECT_TRUE(plain.remove.isEmpty());
}

TEST(StepRowLayout, ASectionHasAChevronAndNoNumber)
{
    const auto layout = StepRowLayout::of({0, 100, 300, 39}, {.isSection = true});
    EXPECT_TRUE(layout.number.isEmpty());
    EXPECT_TRUE(layout.tile.isEmpty());
    EXPECT_EQ(layout.chevron.size(), QSize(22, 22));
    EXPECT_EQ(layout.fill.top(), 105);
    EXPECT_FALSE(layout.hairline.isEmpty());
    EXPECT_EQ(layout.summary.left(), 38);
}

TEST(StepRowLayout, ALongDurationTakesItsRoomFromTheSummary)
{
    const auto layout = StepRowLayout::of({0, 0, 300, 34}, {.durationWidth = 60});
    EXPECT_EQ(layout.duration.width(), 60);
    EXPECT_EQ(layout.summary.right() + 1, layout.duration.left() - 6);
}

} // namespace velvane
