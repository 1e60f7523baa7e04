#include "editor/PickLocationController.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class PickLocationTest : public testing::Test {
protected:
    PickLocationTest()
    {
        Step other;
        other.kind = StepKind::click;
        project.setUndoManager(&undo);
        project.setSteps({other, Step()});
        project.setSelection(move().id);
    }

    const Step &move() const { return project.steps().last(); }

    void finish()
    {
        while (controller.locationPicker().isPicking())
            controller.locationPicker().tick();
    }

    void pickAt(QPointF place)
    {
        controller.pickLocation();
        desktop.screens().setPointer(place);
        finish();
    }

    SimulatedDesktop desktop;
    QUndoStack undo;
    Project project;
    StatusLine status;
    PickLocationController controller{project, status, desktop};
};

} // namespace

TEST_F(PickLocationTest, ItCountsTenSecondsAndSaysWhatToDo)
{
    EXPECT_TRUE(controller.canPickLocation());
    controller.pickLocation();
    EXPECT_EQ(status.message(), "Pick on screen — position the cursor over the target.");
    EXPECT_EQ(controller.locationPicker().remaining(), 10);
}

TEST_F(PickLocationTest, WhatIsPickedIsOneNamedEdit)
{
    const QPointF before = move().point;
    pickAt({301, 99});
    EXPECT_EQ(move().point, QPointF(301, 99));
    EXPECT_EQ(status.message(), "Captured target at (301, 99)");
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Pick Location");
    undo.undo();
    EXPECT_EQ(move().point, before);
}

TEST_F(PickLocationTest, PlacesAreRoundedAndKeptOnTheCanvas)
{
    pickAt({-1500, 100.4});
    EXPECT_EQ(move().point, QPointF(0, 100));
    EXPECT_EQ(status.message(), "Captured target at (0, 100)");
    pickAt({10.5, 5000});
    EXPECT_EQ(move().point, QPointF(11, 800));
    pickAt({5000, -0.4});
    EXPECT_EQ(move().point, QPointF(1280, 0));
    EXPECT_EQ(status.message(), "Captured target at (1280, 0)");
}

TEST_F(PickLocationTest, EscapeLeavesTheStepAndTheMessage)
{
    const QPointF before = move().point;
    controller.pickLocation();
    desktop.press(KeyCode::escape);
    QCoreApplication::processEvents();
    finish();
    EXPECT_EQ(move().point, before);
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(status.message(), "Pick on screen — position the cursor over the target.");
}

TEST_F(PickLocationTest, TheStepIsTheOneThatWasSelectedAtFirst)
{
    const QUuid picked = move().id;
    controller.pickLocation();
    project.setSelection(project.steps().first().id);
    project.setSteps({move(), Step()});
    desktop.screens().setPointer({7, 8});
    finish();
    EXPECT_EQ(project.steps().first().id, picked);
    EXPECT_EQ(project.steps().first().point, QPointF(7, 8));
}

TEST_F(PickLocationTest, AStepThatHasGoneIsLetGo)
{
    controller.pickLocation();
    project.setSteps({project.steps().first()});
    status.setMessage("something else");
    finish();
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(status.message(), "something else");
}

TEST_F(PickLocationTest, OnlyAMoveHasATarget)
{
    project.setSelection(project.steps().first().id);
    EXPECT_FALSE(controller.canPickLocation());
    controller.pickLocation();
    EXPECT_FALSE(controller.locationPicker().isPicking());
    project.setSelection({});
    EXPECT_FALSE(controller.canPickLocation());
}

TEST_F(PickLocationTest, WhatTheDesktopLacksIsTheReason)
{
    desktop.screens().setMissing("No display.");
    EXPECT_FALSE(controller.canPickLocation());
    controller.pickLocation();
    EXPECT_EQ(status.message(), "No display.");
    EXPECT_FALSE(controller.locationPicker().isPicking());
}

TEST_F(PickLocationTest, WhileSomethingElseGoesOnNoneStartsAndOneInProgressIsDropped)
{
    const QPointF before = move().point;
    controller.pickLocation();
    controller.hold("Busy.");
    EXPECT_FALSE(controller.locationPicker().isPicking());
    EXPECT_FALSE(controller.canPickLocation());
    controller.pickLocation();
    EXPECT_EQ(status.message(), "Busy.");
    EXPECT_EQ(move().point, before);
    controller.hold({});
    EXPECT_TRUE(controller.canPickLocation());
}

} // namespace velvane
