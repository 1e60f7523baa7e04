#include "editor/FieldEditing.h"

#include "model/StepList.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

using Kind = Field::Kind;

constexpr Field x{.kind = Kind::x};
constexpr Field y{.kind = Kind::y};
constexpr Field text{.kind = Kind::text};
constexpr Field duration{.kind = Kind::duration};
constexpr Field firstPause{.kind = Kind::pause, .step = 0};

class FieldEditingTest : public testing::Test {
protected:
    FieldEditingTest()
    {
        project.setSteps({Step{.point = {10, 20}}, Step{.kind = StepKind::type}});
        project.setUndoManager(&undo);
        project.setSelection(first().id);
    }

    const Step &first() const { return project.steps()[0]; }

    Project project;
    QUndoStack undo;
    FieldEditing fields{project};
};

} // namespace

TEST_F(FieldEditingTest, AllThatIsTypedWhileFocusedIsOneEntryNamedAfterTheField)
{
    fields.setFocusedField(text);
    fields.setText("H");
    fields.setText("He");
    fields.setText("Hey");
    EXPECT_EQ(undo.count(), 0);
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Edit Text");
    undo.undo();
    EXPECT_EQ(first().text, "");
}

TEST_F(FieldEditingTest, FieldsHaveTheirNames)
{
    EXPECT_EQ(FieldEditing::editName(firstPause), "Change Pause");
    EXPECT_EQ(FieldEditing::editName(x), "Move Target");
    EXPECT_EQ(FieldEditing::editName(y), "Move Target");
    EXPECT_EQ(FieldEditing::editName(text), "Edit Text");
    EXPECT_EQ(FieldEditing::editName(duration), "Change Duration");
    EXPECT_EQ(FieldEditing::editName({.kind = Kind::canvasWidth}), "Change Canvas");
    EXPECT_EQ(FieldEditing::editName({.kind = Kind::canvasHeight}), "Change Canvas");
    EXPECT_EQ(FieldEditing::editName({.kind = Kind::fps}), "Change Frame Rate");
    EXPECT_EQ(FieldEditing::editName({.kind = Kind::startX}), "Move Start");
    EXPECT_EQ(FieldEditing::editName({.kind = Kind::startY}), "Move Start");
}

TEST_F(FieldEditingTest, AnotherFieldsFocusIsAnotherEntry)
{
    fields.setFocusedField(x);
    fields.setNumber(x, 100);
    fields.setFocusedField(duration);
    fields.setNumber(duration, 2.5);
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 2);
    EXPECT_EQ(first().point, QPointF(100, 20));
    EXPECT_EQ(first().duration, 2.5s);
}

TEST_F(FieldEditingTest, FromXToYAreTwoEntriesOfOneName)
{
    fields.setFocusedField(x);
    fields.setNumber(x, 100);
    fields.setFocusedField(y);
    fields.setNumber(y, 200);
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 2);
}

TEST_F(FieldEditingTest, AFieldLeftAsItWasLeavesNoEntry)
{
    fields.setFocusedField(x);
    fields.setNumber(x, 11);
    fields.setNumber(x, 10);
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(FieldEditingTest, APauseIsThatOfItsStepWhicheverIsSelected)
{
    fields.setNumber({.kind = Kind::pause, .step = 1}, 0.7);
    EXPECT_EQ(project.steps()[1].pauseAfter, 0.7s);
    EXPECT_EQ(first().pauseAfter, 0.3s);
}

TEST_F(FieldEditingTest, SecondsAreBumpedByTenthsAndNotBelowTheirLeast)
{
    fields.setNumber(duration, 0.25);
    fields.bump(duration, 0.1);
    EXPECT_EQ(first().duration, 0.4s);
    fields.bump(duration, -1.0);
    EXPECT_EQ(first().duration, 0.05s);
    fields.bump(firstPause, -1.0);
    EXPECT_EQ(first().pauseAfter, 0s);
}

TEST_F(FieldEditingTest, CoordinatesAreBumpedByWholePointsAndNotBelowZero)
{
    fields.setNumber(x, 0.4);
    fields.bump(x, -1);
    EXPECT_EQ(first().point.x(), 0);
    fields.bump(y, 10);
    EXPECT_EQ(first().point.y(), 30);
}

TEST_F(FieldEditingTest, ARunOfBumpsIsOneEntryUntilItIsCommitted)
{
    for (int i = 0; i < 5; ++i)
        fields.bump(duration, 0.1);
    EXPECT_EQ(undo.count(), 0);
    fields.commitOpenGesture();
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Change Duration");
    EXPECT_EQ(first().duration, 1.5s);
}

TEST_F(FieldEditingTest, AnEditElsewhereFirstCommitsWhatIsTyped)
{
    fields.setFocusedField(text);
    fields.setText("typed");
    StepList::addStep(project, StepKind::wait);
    EXPECT_EQ(undo.count(), 2);
    undo.undo();
    EXPECT_EQ(first().text, "typed");
    undo.undo();
    EXPECT_EQ(first().text, "");
}

TEST_F(FieldEditingTest, TypingGoesOnInAnEntryOfItsOwnAfterAnEditElsewhere)
{
    fields.setFocusedField(text);
    fields.setText("a");
    project.edit("Elsewhere", [&] { project.setFps(30); });
    fields.setText("ab");
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 3);
    EXPECT_EQ(undo.undoText(), "Edit Text");
}

TEST_F(FieldEditingTest, AnotherSelectionCommits)
{
    fields.setFocusedField(text);
    fields.setText("typed");
    project.setSelection(project.steps()[1].id);
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(FieldEditingTest, FoldingIsNoPartOfWhatIsTyped)
{
    project.setSteps({Step{.kind = StepKind::section}});
    project.setSelection(first().id);
    fields.setFocusedField(text);
    StepList::toggleCollapse(project, first().id);
    fields.setFocusedField({});
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(FieldEditingTest, UndoingTakesBackWhatIsBeingTyped)
{
    fields.setFocusedField(text);
    fields.setText("typed");
    fields.undo();
    EXPECT_EQ(first().text, "");
    fields.redo();
    EXPECT_EQ(first().text, "typed");
}

TEST_F(FieldEditingTest, RedoAfterTypingHasNothingToRedo)
{
    fields.setText("a");
    fields.undo();
    fields.setText("b");
    fields.redo();
    EXPECT_EQ(first().text, "b");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(FieldEditingTest, WhetherAnythingWasTypedIsKnownBeforeItIsCommitted)
{
    fields.setFocusedField(text);
    EXPECT_FALSE(fields.gesture().hasChanges());
    fields.setText("a");
    EXPECT_TRUE(fields.gesture().hasChanges());
    fields.commitOpenGesture();
    EXPECT_FALSE(fields.gesture().hasChanges());
}

TEST_F(FieldEditingTest, WithoutASelectedStepItsFieldsDoNothing)
{
    project.setSelection({});
    EXPECT_FALSE(fields.number(x));
    EXPECT_FALSE(fields.text());
    fields.setNumber(x, 5);
    fields.bump(duration, 1);
    fields.setText("typed");
    fields.setNumber({.kind = Kind::pause, .step = 7}, 1);
    fields.commitOpenGesture();
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(FieldEditingTest, NumbersThatAreNotFiniteAreIgnored)
{
    fields.setNumber(x, std::numeric_limits<double>::quiet_NaN());
    fields.setNumber(duration, std::numeric_limits<double>::infinity());
    EXPECT_EQ(first().point, QPointF(10, 20));
    EXPECT_EQ(first().duration, 1.0s);
}

TEST_F(FieldEditingTest, TypedSecondsAreNotNegative)
{
    fields.setNumber(duration, -3);
    fields.setNumber(firstPause, -3);
    EXPECT_EQ(first().duration, 0s);
    EXPECT_EQ(first().pauseAfter, 0s);
}

TEST_F(FieldEditingTest, TheDemosOwnFieldsNeedNoSelection)
{
    project.setSelection({});
    fields.setNumber({.kind = Kind::canvasWidth}, 1920);
    fields.setNumber({.kind = Kind::canvasHeight}, 1080.4);
    fields.setNumber({.kind = Kind::fps}, 30);
    fields.setNumber({.kind = Kind::startX}, 12);
    fields.setNumber({.kind = Kind::startY}, 34);
    fields.commitOpenGesture();
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(project.fps(), 30);
    EXPECT_EQ(project.startPoint(), QPointF(12, 34));
    EXPECT_EQ(undo.count(), 3);
    EXPECT_EQ(fields.number({.kind = Kind::canvasWidth}), 1920);
    EXPECT_EQ(fields.number({.kind = Kind::fps}), 30);
}

TEST_F(FieldEditingTest, CanvasAndRateStayWithinWhatCanBeExported)
{
    fields.setNumber({.kind = Kind::canvasWidth}, 0);
    fields.setNumber({.kind = Kind::canvasHeight}, 1e9);
    EXPECT_EQ(project.canvasSize(), QSizeF(1, 16384));
    fields.setNumber({.kind = Kind::fps}, 0);
    EXPECT_EQ(project.fps(), 1);
    fields.setNumber({.kind = Kind::fps}, 1e9);
    EXPECT_EQ(project.fps(), 240);
}

TEST_F(FieldEditingTest, TheFocusIsAnnouncedWhenItChanges)
{
    int changes = 0;
    QObject::connect(&fields, &FieldEditing::focusedFieldChanged, [&] { ++changes; });
    fields.setFocusedField(x);
    fields.setFocusedField(x);
    fields.setFocusedField(firstPause);
    fields.setFocusedField(Field{.kind = Kind::pause, .step = 1});
    EXPECT_EQ(changes, 3);
}

} // namespace velvane
