#include "live/LiveRunFixture.h"

namespace velvane {

struct LiveRunFromHere : LiveRunFixture {};

TEST_F(LiveRunFromHere, TheWholeDemoStartsAtItsStartPoint)
{
    project.setSteps({moveTo({1, 2}), moveTo({3, 4})});
    const Snapshot demo = controller.liveSnapshot({});
    EXPECT_EQ(demo.steps, project.steps());
    EXPECT_EQ(demo.startPoint, QPointF(640, 400));
}

TEST_F(LiveRunFromHere, FromAStepOnItStartsWhereTheMoveBeforeWent)
{
    project.setSteps({moveTo({1, 2}), stepOf(StepKind::click), moveTo({3, 4})});
    const Snapshot demo = controller.liveSnapshot(project.steps()[2].id);
    EXPECT_EQ(demo.steps, QList<Step>({project.steps()[2]}));
    EXPECT_EQ(demo.startPoint, QPointF(1, 2));
}

TEST_F(LiveRunFromHere, FromTheFirstStepItIsTheWholeDemo)
{
    project.setSteps({moveTo({1, 2}), moveTo({3, 4})});
    const Snapshot demo = controller.liveSnapshot(project.steps()[0].id);
    EXPECT_EQ(demo.steps, project.steps());
    EXPECT_EQ(demo.startPoint, QPointF(640, 400));
}

TEST_F(LiveRunFromHere, FromAStepBeforeEveryMoveItStartsAtTheStartPoint)
{
    project.setSteps({stepOf(StepKind::wait), stepOf(StepKind::click), moveTo({3, 4})});
    const Snapshot demo = controller.liveSnapshot(project.steps()[1].id);
    EXPECT_EQ(demo.steps.size(), 2);
    EXPECT_EQ(demo.startPoint, QPointF(640, 400));
}

TEST_F(LiveRunFromHere, FromAnUnknownStepItIsTheWholeDemo)
{
    project.setSteps({moveTo({1, 2}), moveTo({3, 4})});
    EXPECT_EQ(controller.liveSnapshot(QUuid::createUuid()).steps.size(), 2);
}

TEST_F(LiveRunFromHere, TheRunPostsWhatTheSnapshotHolds)
{
    options.countdown = false;
    project.setSteps({moveTo({1, 2}), stepOf(StepKind::hold), stepOf(StepKind::click)});
    run(project.steps()[2].id);
    EXPECT_EQ(desktop.posted().size(), 3U);
    EXPECT_EQ(desktop.log().mid(1, 3),
              QStringList({"mouseMoved 1,2", "leftMouseDown 1,2", "leftMouseUp 1,2"}));
}

} // namespace velvane
