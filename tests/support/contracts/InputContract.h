#pragma once

#include "platform/InputSynthesizer.h"
#include "platform/InputTap.h"
#include "platform/Screens.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace velvane {

/// What posting, listening and key watching keep, one seen through another. A stage gives
/// `input()`, `tap()`, `keys()`, `screens()`, `userPresses(keyCode)`, which is not this program,
/// and `settle()`, which returns once all that was posted has been heard.
template <typename Stage>
class InputContract : public testing::Test {
protected:
    void SetUp() override
    {
        token = stage.tap().listen([this](const InputEvent &event) { heard.push_back(event); },
                                   [] { FAIL() << "the listening was lost"; });
        ASSERT_TRUE(token);
    }

    std::vector<InputEvent::Kind> kinds()
    {
        stage.settle();
        std::vector<InputEvent::Kind> found;
        for (const InputEvent &event : heard)
            found.push_back(event.kind);
        return found;
    }

    Stage stage;
    std::vector<InputEvent> heard;
    Token token;
};

TYPED_TEST_SUITE_P(InputContract);

TYPED_TEST_P(InputContract, AMoveTakesThePointerThere)
{
    this->stage.input().moveTo({200, 150}, false);
    this->stage.input().moveTo({201, 150}, false);
    ASSERT_FALSE(this->kinds().empty());
    EXPECT_EQ(this->heard.back().kind, InputEvent::Kind::mouseMoved);
    EXPECT_EQ(this->heard.back().point, QPointF(201, 150));
    EXPECT_EQ(this->stage.screens().pointer(), QPointF(201, 150));
}

TYPED_TEST_P(InputContract, ADragIsPressDragsAndReleaseAtTheirPlaces)
{
    using Kind = InputEvent::Kind;
    this->stage.input().moveTo({10, 10}, false);
    this->stage.settle();
    this->heard.clear();
    this->stage.input().press(MouseButton::left, {10, 10});
    this->stage.input().moveTo({30, 10}, true);
    this->stage.input().release(MouseButton::left, {30, 10});
    EXPECT_EQ(this->kinds(),
              std::vector<Kind>({Kind::leftMouseDown, Kind::leftMouseDragged, Kind::leftMouseUp}));
    EXPECT_EQ(this->heard.front().point, QPointF(10, 10));
    EXPECT_EQ(this->heard.back().point, QPointF(30, 10));
}

TYPED_TEST_P(InputContract, AMoveThatIsHeldDragsThoughAClickHasLetTheButtonGo)
{
    InputSynthesizer &input = this->stage.input();
    input.moveTo({10, 10}, false);
    input.press(MouseButton::left, {10, 10});
    input.press(MouseButton::left, {10, 10});
    input.release(MouseButton::left, {10, 10});
    this->stage.settle();
    this->heard.clear();
    input.moveTo({30, 10}, true);
    input.release(MouseButton::left, {30, 10});
    const std::vector<InputEvent::Kind> kinds = this->kinds();
    ASSERT_GE(kinds.size(), 2U);
    EXPECT_EQ(kinds[kinds.size() - 2], InputEvent::Kind::leftMouseDragged);
    EXPECT_EQ(kinds.back(), InputEvent::Kind::leftMouseUp);
    EXPECT_EQ(this->heard.back().point, QPointF(30, 10));
}

TYPED_TEST_P(InputContract, TheRightButtonIsTheRightButton)
{
    using Kind = InputEvent::Kind;
    this->stage.input().moveTo({50, 50}, false);
    this->stage.settle();
    this->heard.clear();
    this->stage.input().press(MouseButton::right, {50, 50});
    this->stage.input().release(MouseButton::right, {50, 50});
    EXPECT_EQ(this->kinds(), std::vector<Kind>({Kind::rightMouseDown, Kind::rightMouseUp}));
}

TYPED_TEST_P(InputContract, PointsThatAreNotFiniteAreSkipped)
{
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    this->stage.input().moveTo({nothing, 5}, false);
    this->stage.input().press(MouseButton::left, {5, std::numeric_limits<double>::infinity()});
    EXPECT_TRUE(this->kinds().empty());
}

TYPED_TEST_P(InputContract, PointsOutsideEveryDisplayEndAtTheNearestEdge)
{
    const std::vector<Display> displays = this->stage.screens().displays();
    ASSERT_EQ(displays.size(), 1U);
    const QPointF last = displays.front().frame.bottomRight() - QPointF(1, 1);
    this->stage.input().moveTo({1e9, -1e9}, false);
    this->stage.settle();
    EXPECT_EQ(this->stage.screens().pointer(), QPointF(last.x(), 0));
    this->stage.input().press(MouseButton::right, {-1e300, 1e18});
    this->stage.input().release(MouseButton::right, {20, 1e300});
    ASSERT_FALSE(this->kinds().empty());
    EXPECT_EQ(this->heard.back().point, QPointF(20, last.y()));
    EXPECT_EQ(this->stage.screens().pointer(), QPointF(20, last.y()));
}

TYPED_TEST_P(InputContract, TimesNeverGoBack)
{
    for (int i = 0; i < 20; ++i)
        this->stage.input().moveTo(QPointF(100 + i, 100), false);
    this->stage.settle();
    EXPECT_TRUE(std::ranges::is_sorted(this->heard, {}, &InputEvent::time));
}

TYPED_TEST_P(InputContract, NothingIsHeardAfterTheTokenHasEnded)
{
    this->token.reset();
    this->stage.input().moveTo({300, 300}, false);
    EXPECT_TRUE(this->kinds().empty());
}

REGISTER_TYPED_TEST_SUITE_P(InputContract, AMoveTakesThePointerThere,
                            ADragIsPressDragsAndReleaseAtTheirPlaces,
                            AMoveThatIsHeldDragsThoughAClickHasLetTheButtonGo,
                            TheRightButtonIsTheRightButton, PointsThatAreNotFiniteAreSkipped,
                            PointsOutsideEveryDisplayEndAtTheNearestEdge, TimesNeverGoBack,
                            NothingIsHeardAfterTheTokenHasEnded);

} // namespace velvane
