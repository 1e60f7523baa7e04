#include "platform/x11/X11EventQueue.h"
#include "platform/x11/X11KeyCode.h"
#include "platform/x11/X11ServerTime.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

InputEvent motion(int x, Kind kind = Kind::mouseMoved)
{
    return {kind, QPointF(x, 0)};
}

InputEvent press(quint16 key)
{
    return {Kind::keyDown, {}, key};
}

// Fills a queue with moves until it is crowded.
void crowd(X11EventQueue &queue)
{
    for (std::size_t i = 0; i < X11EventQueue::crowd; ++i)
        queue.push(motion(1));
}

} // namespace

TEST(X11ServerTime, OfThisMachineIsItsOwnClock)
{
    X11ServerTime time;
    EXPECT_EQ(time.of(99'988, 100.0004s), 99.988s);
    EXPECT_EQ(time.of(100'010, 100.012s), 100.010s);
}

TEST(X11ServerTime, HasMoreBitsThanTheServerSends)
{
    X11ServerTime time;
    // 2^32 ms are 49.7 days; a machine that has run for 100 days has wrapped twice.
    const double days100 = 8'640'000;
    const auto sent = static_cast<uint32_t>(static_cast<uint64_t>(days100 * 1000) - 5);
    EXPECT_EQ(time.of(sent, Seconds(days100)), Seconds(days100 - 0.005));
}

TEST(X11ServerTime, GoesOnWhenTheServersNumbersWrap)
{
    X11ServerTime time;
    const double wrap = 4'294'967.296;
    EXPECT_EQ(time.of(0xffff'fffe, Seconds(wrap)), Seconds(4'294'967.294));
    EXPECT_EQ(time.of(3, Seconds(wrap + 0.01)), Seconds(4'294'967.299));
}

TEST(X11ServerTime, OfAnotherMachineCountsFromTheQuickestEvent)
{
    X11ServerTime time;
    EXPECT_EQ(time.of(700'000'000, 50s), 50s);
    EXPECT_EQ(time.of(700'001'000, 51.2s), 51s) << "200 ms slower than the first";
    EXPECT_EQ(time.of(700'002'100, 52s), 52s) << "100 ms quicker than the first";
    EXPECT_EQ(time.of(700'003'100, 53.5s), 53s);
}

TEST(X11ServerTime, NeverGoesBackNorAhead)
{
    X11ServerTime time;
    EXPECT_EQ(time.of(10'000, 10s), 10s);
    EXPECT_EQ(time.of(9'990, 10.001s), 10s);
    EXPECT_EQ(time.of(10'003, 10.0025s), 10.0025s) << "a millisecond ahead of our clock";
}

TEST(X11ServerTime, SurvivesAClockThatIsSet)
{
    X11ServerTime time;
    time.of(10'000, 10s);
    const Seconds after = time.of(5'000'000, 11s);
    EXPECT_EQ(after, 11s);
    EXPECT_EQ(time.of(5'001'000, 12s), 12s);
}

TEST(X11EventQueue, KeepsTheOrder)
{
    X11EventQueue queue;
    EXPECT_TRUE(queue.push(press(38)));
    EXPECT_FALSE(queue.push(motion(5))) << "the reader has been woken already";
    EXPECT_EQ(queue.pop()->keyCode, 38);
    EXPECT_EQ(queue.pop()->point.x(), 5);
    EXPECT_FALSE(queue.pop());
    EXPECT_TRUE(queue.push(press(38))) << "it is to be woken again";
}

TEST(X11EventQueue, KeepsEachMoveUntilItIsCrowded)
{
    X11EventQueue queue;
    crowd(queue);
    EXPECT_EQ(queue.size(), X11EventQueue::crowd);
}

TEST(X11EventQueue, AMoveReplacesTheMoveBeforeItWhenCrowded)
{
    X11EventQueue queue;
    crowd(queue);
    queue.push(motion(7));
    EXPECT_EQ(queue.size(), X11EventQueue::crowd);
    std::optional<InputEvent> last;
    while (const auto event = queue.pop())
        last = event;
    ASSERT_TRUE(last);
    EXPECT_EQ(last->point.x(), 7);
}

TEST(X11EventQueue, NeverDropsAKeyNorWhatADragBeganWith)
{
    X11EventQueue queue;
    crowd(queue);
    for (int i = 0; i < 10; ++i) {
        queue.push(press(38));
        queue.push(motion(7, Kind::leftMouseDragged));
        queue.push(motion(8, Kind::leftMouseDragged));
    }
    EXPECT_EQ(queue.size(), X11EventQueue::crowd + 20);
}

TEST(X11KeyCode, IsThePlaceOnTheKeyboard)
{
    EXPECT_EQ(X11KeyCode::ofStored(KeyCode::escape), 9);
    EXPECT_EQ(X11KeyCode::stored(9), KeyCode::escape);
    EXPECT_EQ(X11KeyCode::stored(38), 0) << "the key called A on an ANSI keyboard";
    EXPECT_FALSE(X11KeyCode::ofStored(0xffff));
    EXPECT_FALSE(X11KeyCode::stored(0));
    EXPECT_FALSE(X11KeyCode::stored(50)) << "Shift";
}

} // namespace velvane
