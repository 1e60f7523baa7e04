#include "editor/StepEdits.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class StepEditsTest : public testing::Test {
protected:
    StepEditsTest()
    {
        project.setSteps({Step{.kind = StepKind::switchApp}, Step{.kind = StepKind::shortcut}});
        project.setUndoManager(&undo);
    }

    Project project;
    QUndoStack undo;
};

} // namespace

TEST_F(StepEditsTest, CentringIsOneEdit)
{
    StepEdits::setCenterWindow(project, 0, true);
    EXPECT_TRUE(project.steps()[0].centerWindow);
    EXPECT_EQ(undo.undoText(), "Center Window");
}

TEST_F(StepEditsTest, AShortcutIsSetWithItsCharactersInOneEdit)
{
    StepEdits::setShortcut(project, 1, 8, 0x100000, "C");
    const Step &step = project.steps()[1];
    EXPECT_EQ(step.keyCode, 8);
    EXPECT_EQ(step.modifiers, 0x100000U);
    EXPECT_EQ(step.shortcutDisplay(), "⌘C");
    EXPECT_EQ(undo.undoText(), "Set Shortcut");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(StepEditsTest, TheSameAgainIsNoEdit)
{
    StepEdits::setCenterWindow(project, 0, false);
    StepEdits::setShortcut(project, 1, 0, 0, "");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepEditsTest, StepsOfOtherKindsAreLeftAlone)
{
    StepEdits::setCenterWindow(project, 1, true);
    StepEdits::setShortcut(project, 0, 8, 0, "C");
    StepEdits::setShortcut(project, 2, 8, 0, "C");
    StepEdits::setShortcut(project, -1, 8, 0, "C");
    EXPECT_EQ(undo.count(), 0);
}

} // namespace velvane
