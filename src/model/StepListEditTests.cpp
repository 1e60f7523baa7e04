#include "model/StepListFixture.h"

namespace velvane {

TEST_F(StepListEdit, TheSelectedIndexIsThatOfTheSelectedStep)
{
    EXPECT_FALSE(StepList::selectedIndex(project));
    project.setSelection(id("C"));
    EXPECT_EQ(StepList::selectedIndex(project), 3);
    project.setSelection(QUuid::createUuid());
    EXPECT_FALSE(StepList::selectedIndex(project));
}

TEST_F(StepListEdit, OnlyASelectedMoveIsTheSelectedMove)
{
    project.setSelection(id("A"));
    EXPECT_FALSE(StepList::selectedMoveID(project));
    project.setSelection(id("B"));
    EXPECT_EQ(StepList::selectedMoveID(project), id("B"));
    project.setSelection(QUuid::createUuid());
    EXPECT_FALSE(StepList::selectedMoveID(project));
}

TEST_F(StepListEdit, ANewStepGoesToTheEndWhenNothingIsSelected)
{
    StepList::addStep(project, StepKind::type);
    EXPECT_EQ(order(), "ASBCTDType here");
    EXPECT_EQ(selected(), "Type here");
    EXPECT_EQ(undo.undoText(), "Add Type");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(StepListEdit, ANewStepGoesAfterTheSelectedOneAndUnfoldsItsSection)
{
    project.setSelection(id("B"));
    StepList::addStep(project, StepKind::type);
    EXPECT_EQ(order(), "ASBType hereCTD");
    EXPECT_FALSE(isCollapsed("S"));
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(StepListEdit, ANewMoveAimsAtTheCentreOfTheCanvas)
{
    project.setCanvasSize({1000, 500});
    StepList::addStep(project, StepKind::move);
    EXPECT_EQ(project.steps().last().point, QPointF(500, 250));
    EXPECT_EQ(undo.undoText(), "Add Move to");
}

TEST_F(StepListEdit, ANewSectionUnfoldsNothing)
{
    project.setSelection(id("S"));
    StepList::addStep(project, StepKind::section);
    EXPECT_EQ(order(), "ASSectionBCTD");
    EXPECT_TRUE(isCollapsed("S"));
    EXPECT_EQ(selected(), "Section");
}

TEST_F(StepListEdit, DeletingTheSelectedStepSelectsItsSuccessor)
{
    project.setSelection(id("B"));
    StepList::deleteStep(project, id("B"));
    EXPECT_EQ(order(), "ASCTD");
    EXPECT_EQ(selected(), "C");
    EXPECT_EQ(undo.undoText(), "Delete Step");
}

TEST_F(StepListEdit, DeletingTheLastStepSelectsTheNewLastOne)
{
    project.setSelection(id("D"));
    StepList::deleteStep(project, id("D"));
    EXPECT_EQ(selected(), "T");
}

TEST_F(StepListEdit, DeletingAnotherStepLeavesTheSelection)
{
    project.setSelection(id("D"));
    StepList::deleteStep(project, id("A"));
    EXPECT_EQ(selected(), "D");
}

TEST_F(StepListEdit, DeletingTheOnlyStepLeavesNoSelection)
{
    project.setSteps({named("A", StepKind::click)});
    project.setSelection(id("A"));
    StepList::deleteStep(project, id("A"));
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_FALSE(project.selection());
}

TEST_F(StepListEdit, DeletingAnUnknownStepDoesNothing)
{
    StepList::deleteStep(project, QUuid::createUuid());
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, DeletingASectionLeavesItsSteps)
{
    StepList::deleteStep(project, id("T"));
    EXPECT_EQ(order(), "ASBCD");
}

TEST_F(StepListEdit, ManyAreDeletedInOneEditAndTheFirstOnesPlaceIsSelected)
{
    StepList::deleteSelected(project, {id("C"), id("S"), id("D")});
    EXPECT_EQ(order(), "ABT");
    EXPECT_EQ(selected(), "B");
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Delete Step");
    undo.undo();
    EXPECT_EQ(order(), "ASBCTD");
}

TEST_F(StepListEdit, DeletingUpToTheEndSelectsTheNewLastStep)
{
    StepList::deleteSelected(project, {id("T"), id("D")});
    EXPECT_EQ(selected(), "C");
}

TEST_F(StepListEdit, DeletingAllLeavesNoSelection)
{
    QSet<QUuid> all;
    for (const Step &step : project.steps())
        all << step.id;
    project.setSelection(id("A"));
    StepList::deleteSelected(project, all);
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_FALSE(project.selection());
}

TEST_F(StepListEdit, WithoutASetTheSelectedStepIsDeleted)
{
    project.setSelection(id("A"));
    StepList::deleteSelected(project, {});
    EXPECT_EQ(order(), "SBCTD");
    EXPECT_EQ(selected(), "S");
}

TEST_F(StepListEdit, TheSetCountsAndNotTheSelection)
{
    project.setSelection(id("A"));
    StepList::deleteSelected(project, {id("C")});
    EXPECT_EQ(order(), "ASBTD");
    EXPECT_EQ(selected(), "T");
}

TEST_F(StepListEdit, WithNothingSelectedNothingIsDeleted)
{
    StepList::deleteSelected(project, {});
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, AnApplicationIsSetInOneEdit)
{
    StepList::setApp(project, 5, "Notes");
    EXPECT_EQ(project.steps()[5].text, "Notes");
    EXPECT_EQ(undo.undoText(), "Set App");
}

TEST_F(StepListEdit, AnApplicationIsSetOnASwitchStepOnly)
{
    for (const qsizetype index : {-1, 0, 6})
        StepList::setApp(project, index, "Notes");
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListEdit, GesturesHearOfEveryEditBeforeItBegins)
{
    QStringList heard;
    QObject::connect(&project, &Project::willEdit, &project, [&] { heard << order(); });
    StepList::deleteStep(project, id("A"));
    StepList::toggleCollapse(project, id("S"));
    EXPECT_EQ(heard, QStringList({"ASBCTD", "SBCTD"}));
}

} // namespace velvane
