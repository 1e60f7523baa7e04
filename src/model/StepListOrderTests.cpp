#include "model/StepListFixture.h"

namespace velvane {

TEST_F(StepListEdit, ASectionIsDraggedWithItsSteps)
{
    StepList::moveVisible(project, {1}, 4);
    EXPECT_EQ(order(), "ATDSBC");
    EXPECT_TRUE(isCollapsed("S"));
    EXPECT_EQ(undo.undoText(), "Reorder Steps");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(StepListEdit, AStepIsDraggedAlone)
{
    StepList::toggleCollapse(project, id("S"));
    StepList::moveVisible(project, {2}, 99);
    EXPECT_EQ(order(), "ASCTDB");
}

TEST_F(StepListEdit, AStepIsDraggedUpwards)
{
    StepList::moveVisible(project, {3}, 0);
    EXPECT_EQ(order(), "DASBCT");
}

TEST_F(StepListEdit, TheDestinationIsARowAndNotAnIndex)
{
    // Row 2 is T, which stands at index 4.
    StepList::moveVisible(project, {0}, 2);
    EXPECT_EQ(order(), "SBCATD");
}

TEST_F(StepListEdit, AStepDraggedIntoAFoldedSectionUnfoldsIt)
{
    StepList::moveVisible(project, {3}, 2);
    EXPECT_EQ(order(), "ASBCDT");
    EXPECT_FALSE(isCollapsed("S"));
}

TEST_F(StepListEdit, ASectionDraggedBehindAFoldedOneUnfoldsThatOne)
{
    StepList::toggleCollapse(project, id("T"));
    StepList::moveVisible(project, {1}, 3);
    EXPECT_EQ(order(), "ATDSBC");
    EXPECT_FALSE(isCollapsed("T"));
}

TEST_F(StepListEdit, OnlyTheLowestDraggedRowMoves)
{
    StepList::moveVisible(project, {3, 0}, 99);
    EXPECT_EQ(order(), "SBCTDA");
}

TEST_F(StepListEdit, ASectionDroppedWithinItselfStays)
{
    StepList::toggleCollapse(project, id("S"));
    for (const qsizetype to : {1, 2, 3})
        StepList::moveVisible(project, {1}, to);
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, ADropWhereTheStepAlreadyIsIsNoEdit)
{
    StepList::moveVisible(project, {0}, 0);
    StepList::moveVisible(project, {0}, 1);
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, ASourceThatIsNoRowMovesNothing)
{
    StepList::moveVisible(project, {}, 0);
    StepList::moveVisible(project, {4}, 0);
    StepList::moveVisible(project, {-1}, 3);
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, FoldingMakesNoUndoEntry)
{
    StepList::toggleCollapse(project, id("S"));
    EXPECT_FALSE(isCollapsed("S"));
    StepList::toggleCollapse(project, id("S"));
    EXPECT_TRUE(isCollapsed("S"));
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, OnlySectionsFold)
{
    StepList::toggleCollapse(project, id("A"));
    EXPECT_FALSE(isCollapsed("A"));
}

TEST_F(StepListEdit, UnfoldingReachesTheNearestSectionOnly)
{
    StepList::uncollapseSectionContaining(project, id("D"));
    EXPECT_TRUE(isCollapsed("S"));
    StepList::uncollapseSectionContaining(project, id("A"));
    EXPECT_TRUE(isCollapsed("S"));
    StepList::uncollapseSectionContaining(project, id("C"));
    EXPECT_FALSE(isCollapsed("S"));
    EXPECT_EQ(undo.count(), 0);
}

} // namespace velvane
