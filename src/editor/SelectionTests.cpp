#include "editor/Selection.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class SelectionTest : public testing::Test {
protected:
    SelectionTest()
    {
        QList<Step> steps;
        for (int i = 0; i < 4; ++i)
            steps << Step();
        project.setSteps(steps);
        project.setUndoManager(&undo);
        QObject::connect(&selection, &Selection::selectedIDsChanged, [this] { ++idsChanged; });
        QObject::connect(&selection, &Selection::targetsChanged, [this] { ++targetsChanged; });
    }

    QUuid id(int index) const { return project.steps()[index].id; }

    Project project;
    QUndoStack undo;
    Selection selection{project};
    int idsChanged = 0;
    int targetsChanged = 0;
};

} // namespace

TEST_F(SelectionTest, AtFirstNothingIsSelected)
{
    EXPECT_TRUE(selection.targets().isEmpty());
    EXPECT_FALSE(selection.canDelete());
}

TEST_F(SelectionTest, OneSelectedRowIsTheProjectsSelection)
{
    selection.setSelectedIDs({id(1)});
    EXPECT_EQ(project.selection(), id(1));
    selection.setSelectedIDs({id(2)});
    EXPECT_EQ(project.selection(), id(2));
    selection.setSelectedIDs({});
    EXPECT_FALSE(project.selection());
}

TEST_F(SelectionTest, OfSeveralTheCurrentOneIsTheProjectsSelection)
{
    selection.setSelectedIDs({id(1), id(2)}, id(2));
    EXPECT_EQ(project.selection(), id(2));
}

TEST_F(SelectionTest, WithoutACurrentOneTheProjectsSelectionStays)
{
    selection.select(id(2));
    selection.setSelectedIDs({id(1), id(2), id(3)});
    EXPECT_EQ(project.selection(), id(2));
}

TEST_F(SelectionTest, OtherwiseTheFirstInTheDemoIsTheProjectsSelection)
{
    selection.select(id(0));
    selection.setSelectedIDs({id(3), id(1)});
    EXPECT_EQ(project.selection(), id(1));
}

TEST_F(SelectionTest, AStepSelectedElsewhereStandsAlone)
{
    selection.setSelectedIDs({id(1), id(2)});
    project.setSelection(id(3));
    EXPECT_TRUE(selection.selectedIDs().isEmpty());
    EXPECT_EQ(selection.targets(), QSet<QUuid>{id(3)});
}

TEST_F(SelectionTest, AStepOfTheSetSelectedElsewhereLeavesTheSet)
{
    selection.setSelectedIDs({id(1), id(2)});
    project.setSelection(id(2));
    EXPECT_EQ(selection.selectedIDs(), (QSet<QUuid>{id(1), id(2)}));
}

TEST_F(SelectionTest, ChangesAreAnnouncedOnce)
{
    selection.setSelectedIDs({id(1)});
    selection.setSelectedIDs({id(1)});
    EXPECT_EQ(idsChanged, 1);
    EXPECT_EQ(targetsChanged, 1);
    project.setSelection(id(2));
    EXPECT_EQ(idsChanged, 2);
    EXPECT_EQ(targetsChanged, 2);
}

TEST_F(SelectionTest, AllAreSelectedAtOnce)
{
    selection.selectAll();
    EXPECT_EQ(selection.targetIndices(), QList<qsizetype>({0, 1, 2, 3}));
}

TEST_F(SelectionTest, DeletingEmptiesTheSetAndSelectsTheSuccessor)
{
    const QUuid next = id(3);
    selection.setSelectedIDs({id(1), id(2)});
    selection.deleteSelected();
    EXPECT_EQ(project.steps().size(), 2);
    EXPECT_TRUE(selection.selectedIDs().isEmpty());
    EXPECT_EQ(project.selection(), next);
    EXPECT_EQ(selection.targets(), QSet<QUuid>{next});
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Delete Step");
}

TEST_F(SelectionTest, DeletedAgainAndAgainTheListEmpties)
{
    selection.select(id(0));
    for (int i = 0; i < 4; ++i)
        selection.deleteSelected();
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_FALSE(project.selection());
    selection.deleteSelected();
    EXPECT_EQ(undo.count(), 4);
}

TEST_F(SelectionTest, StepsThatAreGoneAreNoTargets)
{
    selection.setSelectedIDs({id(1), id(2)});
    project.setSteps({project.steps()[0], project.steps()[2]});
    EXPECT_EQ(selection.targetIndices(), QList<qsizetype>({1}));
    EXPECT_TRUE(selection.canDelete());
    project.setSteps({project.steps()[0]});
    EXPECT_FALSE(selection.canDelete());
}

} // namespace velvane
