#include "live/RunFixture.h"

#include <cmath>
#include <limits>

namespace velvane {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

TEST_F(LiveDriver, AnAbsurdlyLongMoveCanBeCancelled)
{
    for (const double duration : {1e300, infinity}) {
        cancelled = false;
        cancelAt(desktop.clock().now() + 1s);
        desktop.clearLog();
        run({moveTo({30, 40}, Seconds(duration))});
        EXPECT_LE(desktop.log().size(), 63);
    }
}

TEST_F(LiveDriver, DurationsBelowZeroAndNaNAreShortestMoves)
{
    for (const double duration : {-1.0, -infinity, std::nan("")}) {
        desktop.clearLog();
        run({moveTo({30, 40}, Seconds(duration), Seconds(duration))});
        EXPECT_EQ(desktop.log(),
                  QStringList({"mouseMoved 10,20", "mouseMoved 10,20", "mouseMoved 30,40"}));
    }
}

TEST_F(LiveDriver, APointThatIsNotFiniteLeavesTheCursorAndReleasesTheButton)
{
    run({stepOf(StepKind::hold), moveTo({std::nan(""), 40}), moveTo({infinity, 0})});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 10,20", "leftMouseDown 10,20", "leftMouseUp 10,20"}));
}

TEST_F(LiveDriver, AStartThatIsNotFiniteIsWhereThePointerIs)
{
    desktop.screens().setPointer({7, 8});
    demo.startPoint = {infinity, 3};
    run({stepOf(StepKind::click)});
    EXPECT_EQ(desktop.log(),
              QStringList({"mouseMoved 7,8", "leftMouseDown 7,8", "leftMouseUp 7,8"}));
}

TEST_F(LiveDriver, PointsFarOutsideEveryScreenEndAtItsEdge)
{
    run({moveTo({1e9, -1e9}), stepOf(StepKind::click)});
    EXPECT_EQ(desktop.log().mid(2),
              QStringList({"mouseMoved 1919,0", "leftMouseDown 1919,0", "leftMouseUp 1919,0"}));
}

TEST_F(LiveDriver, ADisplayThatGoesAwayEndsTheRun)
{
    desktop.clock().at(2s, [this] { desktop.screens().setDisplays({}); });
    run({stepOf(StepKind::wait, 1000s), stepOf(StepKind::click)});
    EXPECT_LE(now(), 3);
    EXPECT_EQ(desktop.log(), QStringList("mouseMoved 10,20"));
}

} // namespace velvane
