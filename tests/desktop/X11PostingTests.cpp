#include "InputRecorder.h"
#include "KeyboardMap.h"
#include "X11Session.h"
#include "base/KeyCode.h"
#include "platform/x11/X11Xkb.h"
#include "support/Print.h"

#include <limits>

namespace velvane {

namespace {

constexpr int keyPress = XCB_KEY_PRESS, keyRelease = XCB_KEY_RELEASE, motion = XCB_MOTION_NOTIFY;
constexpr int buttonPress = XCB_BUTTON_PRESS, buttonRelease = XCB_BUTTON_RELEASE;

// Where no test goes on its own account.
constexpr QPoint end(1777, 999);

class X11PostingTest : public testing::Test {
protected:
    void SetUp() override
    {
        input().moveTo({100, 100}, false);
        seen();
    }

    InputSynthesizer &input() { return session.desktop().input(); }

    std::vector<SeenEvent> seen()
    {
        input().moveTo(end, false);
        return recorder.until(end);
    }

    // Keys only, as they are pressed and released.
    std::vector<std::pair<int, int>> seenKeys()
    {
        std::vector<std::pair<int, int>> keys;
        for (const SeenEvent &event : seen())
            if (event.type == keyPress || event.type == keyRelease)
                keys.emplace_back(event.type, event.detail);
        return keys;
    }

    InputRecorder recorder;
    X11Session session;
};

void type(InputSynthesizer &input, const QString &text)
{
    const auto typing = input.beginTyping(text);
    for (const QChar character : text)
        typing->post(QString(character));
}

} // namespace

TEST_F(X11PostingTest, APointerGoesWhereItIsSent)
{
    input().moveTo({10.4, 20.6}, false);
    input().moveTo({0, 0}, false);
    EXPECT_EQ(seen(), (std::vector<SeenEvent>{{motion, 0, {10, 21}, 0}, {motion, 0, {0, 0}, 0}}));
}

TEST_F(X11PostingTest, FarOutsideIsTheNearestEdgeAndNowhereIsSkipped)
{
    input().moveTo({1e18, -7}, false);
    input().moveTo({std::numeric_limits<double>::quiet_NaN(), 5}, false);
    input().press(MouseButton::left, {5, -std::numeric_limits<double>::infinity()});
    input().moveTo({-1e300, 1e300}, false);
    EXPECT_EQ(seen(),
              (std::vector<SeenEvent>{{motion, 0, {1919, 0}, 0}, {motion, 0, {0, 1079}, 0}}));
}

TEST_F(X11PostingTest, ADragHoldsTheLeftButtonAllTheWay)
{
    input().moveTo({300, 300}, false);
    input().press(MouseButton::left, {300, 300});
    input().moveTo({310, 305}, true);
    input().moveTo({320, 310}, true);
    input().release(MouseButton::left, {320, 310});
    const int held = XCB_BUTTON_MASK_1;
    EXPECT_EQ(seen(), (std::vector<SeenEvent>{{motion, 0, {300, 300}, 0},
                                              {buttonPress, 1, {300, 300}, 0},
                                              {motion, 0, {310, 305}, held},
                                              {motion, 0, {320, 310}, held},
                                              {buttonRelease, 1, {320, 310}, held}}));
}

TEST_F(X11PostingTest, ADragGoesOnAfterAClickAndEndsWithItsRelease)
{
    input().moveTo({300, 300}, false);
    input().press(MouseButton::left, {300, 300});
    input().press(MouseButton::left, {300, 300});
    input().release(MouseButton::left, {300, 300});
    input().moveTo({310, 305}, true);
    input().moveTo({320, 310}, true);
    input().release(MouseButton::left, {320, 310});
    const int held = XCB_BUTTON_MASK_1;
    EXPECT_EQ(seen(), (std::vector<SeenEvent>{{motion, 0, {300, 300}, 0},
                                              {buttonPress, 1, {300, 300}, 0},
                                              {buttonRelease, 1, {300, 300}, held},
                                              {buttonPress, 1, {300, 300}, 0},
                                              {motion, 0, {310, 305}, held},
                                              {motion, 0, {320, 310}, held},
                                              {buttonRelease, 1, {320, 310}, held}}));
}

TEST_F(X11PostingTest, APressElsewhereTakesThePointerThereFirst)
{
    input().press(MouseButton::right, {400, 50});
    input().release(MouseButton::right, {400, 50});
    EXPECT_EQ(seen(), (std::vector<SeenEvent>{{motion, 0, {400, 50}, 0},
                                              {buttonPress, 3, {400, 50}, 0},
                                              {buttonRelease, 3, {400, 50}, XCB_BUTTON_MASK_3}}));
}

TEST_F(X11PostingTest, AShortcutHoldsItsModifiersAroundItsKey)
{
    input().pressKey(8, Modifier::control | Modifier::shift | 1);
    const std::vector<SeenEvent> events = seen();
    ASSERT_EQ(events.size(), 6U);
    EXPECT_EQ(events[2].detail, 54) << "the key of C";
    EXPECT_EQ(events[2].state, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
    EXPECT_EQ(events[3].type, keyRelease);
    EXPECT_EQ(events[3].state, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
    EXPECT_EQ(events[5].type, keyRelease);
}

TEST_F(X11PostingTest, OptionIsAltAndCommandIsSuper)
{
    input().pressKey(0, Modifier::option | Modifier::command);
    const std::vector<SeenEvent> events = seen();
    ASSERT_EQ(events.size(), 6U);
    EXPECT_EQ(events[2].state, XCB_MOD_MASK_1 | XCB_MOD_MASK_4);
}

TEST_F(X11PostingTest, KeysOfNoPositionAreSkipped)
{
    input().pressKey(InputEvent::noKey, Modifier::control);
    EXPECT_TRUE(seen().empty());
}

TEST_F(X11PostingTest, ACharacterOfTheLayoutIsOnePressOfItsKey)
{
    type(input(), "ab");
    EXPECT_EQ(seenKeys(), (std::vector<std::pair<int, int>>{
                              {keyPress, 38}, {keyRelease, 38}, {keyPress, 56}, {keyRelease, 56}}));
}

TEST_F(X11PostingTest, TypingLeavesTheKeyboardMapAsItWas)
{
    const QByteArray before = keyboardMap();
    ASSERT_GT(before.size(), 1000);
    {
        const auto typing = input().beginTyping(QString::fromUtf8("aé日"));
        typing->post(QString::fromUtf8("日"));
        EXPECT_NE(keyboardMap(), before) << "a key had to be lent a character";
    }
    EXPECT_EQ(keyboardMap(), before);
}

// Window managers bind all their keys anew at each change, some of them for a tenth of a second.
TEST_F(X11PostingTest, ProgramsAreToldOfOneChangeHoweverManyKeysAreLent)
{
    const X11Connection other;
    const auto changes = [&] {
        const XReply<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(other.get(), xcb_get_input_focus(other.get()), nullptr));
        int count = 0;
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(other.get())})
            count += (event->response_type & 0x7f) == XCB_MAPPING_NOTIFY ? 1 : 0;
        return count;
    };
    changes();
    auto typing =
        input().beginTyping(QString::fromUtf8("日本語漢字仮名中文简体繁體한국어글자абвгд"));
    EXPECT_EQ(changes(), 1);
    typing.reset();
    EXPECT_EQ(changes(), 1);
}

TEST_F(X11PostingTest, CapsLockIsOutOfTheWayWhileTypingOnly)
{
    const X11Connection keyboard;
    useXkb(keyboard);
    lockModifiers(keyboard, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_LOCK);
    ASSERT_EQ(lockedModifiers(keyboard), XCB_MOD_MASK_LOCK);
    type(input(), "a");
    const std::vector<SeenEvent> events = seen();
    EXPECT_EQ(lockedModifiers(keyboard), XCB_MOD_MASK_LOCK);
    lockModifiers(keyboard, XCB_MOD_MASK_LOCK, 0);
    ASSERT_EQ(lockedModifiers(keyboard), 0);
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events.front().detail, 38);
    EXPECT_EQ(events.front().state, 0);
}

TEST_F(X11PostingTest, WhatIsHeldIsReleasedWithTheDesktop)
{
    {
        X11Session other;
        other.desktop().input().press(MouseButton::left, {500, 500});
    }
    const std::vector<SeenEvent> events = seen();
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events.back(), (SeenEvent{buttonRelease, 1, {500, 500}, XCB_BUTTON_MASK_1}));
}

TEST(X11PostingServers, PointsFollowThePrimaryMonitor)
{
    const TestServer server({"-screen", "0", "2000x800x24"});
    const QString display = QString::fromLocal8Bit(server.display());
    InputRecorder recorder(server.display());
    X11Session session(server.display());
    InputSynthesizer &input = session.desktop().input();
    input.moveTo({20, 30}, false);
    // A monitor that appears in the middle of a run counts from then on.
    ASSERT_EQ(QProcess::execute("xrandr", {"-display", display, "--setmonitor", "*right",
                                           "1200/300x800/200+800+0", "none"}),
              0);
    input.moveTo({20, 30}, false);
    input.moveTo({1199, 799}, false);
    EXPECT_EQ(recorder.until({1999, 799}),
              (std::vector<SeenEvent>{{motion, 0, {20, 30}, 0}, {motion, 0, {820, 30}, 0}}));
}

TEST(X11PostingServers, WithoutXTestNothingCanBePosted)
{
    const TestServer server({"-extension", "XTEST"});
    X11Session session(server.display());
    InputSynthesizer &input = session.desktop().input();
    EXPECT_TRUE(input.missing().contains("XTEST"));
    const auto before = session.desktop().screens().pointer();
    ASSERT_TRUE(before);
    ASSERT_NE(*before, QPointF(5, 5));
    InputRecorder recorder(server.display());
    input.moveTo({5, 5}, false);
    input.press(MouseButton::left, {5, 5});
    input.pressKey(0, 0);
    const auto typing = input.beginTyping("a");
    typing->post("a");
    EXPECT_EQ(session.desktop().screens().pointer(), before);
    // Of a pointer that another program moves, without posting, the recorder hears.
    const X11Connection other(server.display());
    xcb_warp_pointer(other.get(), XCB_NONE, other.root(), 0, 0, 0, 0, 99, 98);
    xcb_flush(other.get());
    EXPECT_EQ(recorder.until({99, 98}), std::vector<SeenEvent>());
}

TEST(X11PostingServers, AServerThatGoesAwayIsSurvived)
{
    TestServer server;
    X11Session session(server.display());
    InputSynthesizer &input = session.desktop().input();
    EXPECT_EQ(input.missing(), "");
    input.press(MouseButton::left, {5, 5});
    const auto typing = input.beginTyping(QString::fromUtf8("aé"));
    server.stop();
    for (int again = 0; again < 2; ++again) {
        input.moveTo({9, 9}, true);
        input.release(MouseButton::left, {5, 5});
        input.pressKey(KeyCode::tab, Modifier::shift);
        typing->post(QString::fromUtf8("é"));
    }
    EXPECT_EQ(input.missing(), "There is no display.");
}

} // namespace velvane
