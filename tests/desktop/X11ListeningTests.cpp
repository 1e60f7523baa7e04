#include "Eventually.h"
#include "InputPoster.h"
#include "X11Session.h"
#include "base/KeyCode.h"
#include "platform/SystemClock.h"
#include "platform/x11/X11InputTap.h"
#include "platform/x11/X11KeyWatcher.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <numeric>
#include <semaphore>

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

// X codes of keys by what an American keyboard writes on them.
constexpr int keyA = 38, keyC = 54, keyE = 26, keyY = 29, keyZ = 52, equals = 21, bracket = 34;
constexpr int escape = 9, shift = 50, control = 37, alt = 64, super = 133;

// All that listens, on a server that nothing else uses.
struct Listening {
    explicit Listening(const QByteArray &display)
        : connection(display)
        , listener(connection, display, postedKeys)
        , tap(listener, display, clock)
        , keys(listener)
        , poster(display)
    {}

    X11Connection connection;
    SystemClock clock;
    X11PostedKeys postedKeys;
    X11Listener listener;
    X11InputTap tap;
    X11KeyWatcher keys;
    InputPoster poster;
};

class X11ListeningTest : public testing::Test {
protected:
    void SetUp() override
    {
        token = on.tap.listen([this](const InputEvent &event) { heard.push_back(event); },
                              [this] { ++lost; });
        ASSERT_TRUE(token);
        // Where no test goes.
        on.poster.move({700, 500});
        ASSERT_TRUE(eventually([&] { return !heard.empty(); }));
        heard.clear();
    }

    // All that was heard of what has been posted since the last call.
    std::vector<InputEvent> all()
    {
        const QPoint end(701 + m_ends++, 599);
        on.poster.move(end);
        EXPECT_TRUE(
            eventually([&] { return !heard.empty() && heard.back().point == QPointF(end); }));
        if (!heard.empty())
            heard.pop_back();
        return std::exchange(heard, {});
    }

    QString typed()
    {
        QString text;
        for (const InputEvent &event : all())
            text += event.text;
        return text;
    }

    void setLayout(const QStringList &arguments)
    {
        const QStringList display{"-display", QString::fromLocal8Bit(server.display())};
        ASSERT_EQ(QProcess::execute("setxkbmap", display + arguments), 0);
    }

    TestServer server{{"-screen", "0", "800x600x24"}};
    Listening on{server.display()};
    std::vector<InputEvent> heard;
    int lost = 0;
    Token token;

private:
    int m_ends = 0;
};

std::vector<Kind> kinds(const std::vector<InputEvent> &events)
{
    std::vector<Kind> found;
    for (const InputEvent &event : events)
        found.push_back(event.kind);
    return found;
}

std::vector<QPointF> places(const std::vector<InputEvent> &events)
{
    std::vector<QPointF> found;
    for (const InputEvent &event : events)
        found.push_back(event.point);
    return found;
}

} // namespace

TEST_F(X11ListeningTest, MovesClicksAndDragsAreHeardAsTheyHappened)
{
    on.poster.move({10, 20});
    on.poster.click(1);
    on.poster.move({30, 40});
    on.poster.button(1, true);
    on.poster.move({50, 60});
    on.poster.move({51, 60});
    on.poster.button(1, false);
    on.poster.click(3);
    const std::vector<InputEvent> events = all();
    EXPECT_EQ(kinds(events),
              std::vector<Kind>({Kind::mouseMoved, Kind::leftMouseDown, Kind::leftMouseUp,
                                 Kind::mouseMoved, Kind::leftMouseDown, Kind::leftMouseDragged,
                                 Kind::leftMouseDragged, Kind::leftMouseUp, Kind::rightMouseDown,
                                 Kind::rightMouseUp}));
    EXPECT_EQ(places(events), std::vector<QPointF>({{10, 20},
                                                    {10, 20},
                                                    {10, 20},
                                                    {30, 40},
                                                    {30, 40},
                                                    {50, 60},
                                                    {51, 60},
                                                    {51, 60},
                                                    {51, 60},
                                                    {51, 60}}));
}

TEST_F(X11ListeningTest, WheelsAndTheMiddleButtonAreNotReported)
{
    for (int button = 4; button <= 7; ++button)
        on.poster.click(button);
    on.poster.button(2, true);
    on.poster.move({5, 5});
    on.poster.button(2, false);
    EXPECT_TRUE(all().empty());
}

TEST_F(X11ListeningTest, ALeftHandedMouseClicksWithItsRightButton)
{
    X11Connection settings(server.display());
    const XReply<xcb_get_pointer_mapping_reply_t> buttons(xcb_get_pointer_mapping_reply(
        settings.get(), xcb_get_pointer_mapping(settings.get()), nullptr));
    ASSERT_TRUE(buttons);
    std::vector<uint8_t> map(buttons->map_len);
    std::iota(map.begin(), map.end(), uint8_t(1));
    ASSERT_GE(map.size(), 3U);
    std::swap(map[0], map[2]);
    const XReply<xcb_set_pointer_mapping_reply_t> set(xcb_set_pointer_mapping_reply(
        settings.get(), xcb_set_pointer_mapping(settings.get(), buttons->map_len, map.data()),
        nullptr));
    ASSERT_TRUE(set);
    ASSERT_EQ(set->status, XCB_MAPPING_STATUS_SUCCESS);
    on.poster.button(3, true);
    on.poster.move({40, 40});
    on.poster.button(3, false);
    EXPECT_EQ(kinds(all()),
              std::vector<Kind>({Kind::leftMouseDown, Kind::leftMouseDragged, Kind::leftMouseUp}));
}

TEST_F(X11ListeningTest, ShortcutsKeepTheirNumbersAndModifiers)
{
    on.poster.chord({control}, keyC);
    on.poster.chord({shift, super}, keyZ);
    on.poster.chord({alt, control, shift, super}, keyA);
    const std::vector<InputEvent> events = all();
    ASSERT_EQ(events.size(), 3U) << "modifiers and releases are no events";
    EXPECT_EQ(events[0].keyCode, 8);
    EXPECT_EQ(events[0].modifiers, Modifier::control);
    EXPECT_EQ(events[1].keyCode, 6);
    EXPECT_EQ(events[1].modifiers, Modifier::shift | Modifier::command);
    EXPECT_EQ(events[2].keyCode, 0);
    EXPECT_EQ(events[2].modifiers,
              Modifier::shift | Modifier::control | Modifier::option | Modifier::command);
}

TEST_F(X11ListeningTest, AHeldKeyRepeats)
{
    on.poster.key(keyA, true);
    EXPECT_TRUE(eventually([&] { return heard.size() >= 3; }));
    on.poster.key(keyA, false);
    for (const InputEvent &event : all()) {
        EXPECT_EQ(event.kind, Kind::keyDown);
        EXPECT_EQ(event.text, "a");
    }
}

TEST_F(X11ListeningTest, TextIsThatOfTheLayout)
{
    setLayout({"us"});
    on.poster.tap(keyY);
    on.poster.chord({shift}, keyA);
    EXPECT_EQ(typed(), "yA");
    setLayout({"fr"});
    on.poster.tap(keyA);
    on.poster.tap(11);
    EXPECT_EQ(typed(), QString::fromUtf8("qé"));
    setLayout({"de"});
    on.poster.tap(keyY);
    on.poster.chord({108}, 24);
    EXPECT_EQ(typed(), "z@");
}

TEST_F(X11ListeningTest, DeadKeysTypeWithTheNext)
{
    setLayout({"de"});
    on.poster.tap(equals);
    on.poster.tap(keyE);
    on.poster.tap(equals);
    on.poster.chord({shift}, keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("éÉ"));
    setLayout({"fr"});
    on.poster.tap(bracket);
    on.poster.tap(keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("ê"));
}

TEST_F(X11ListeningTest, ComposeSequencesType)
{
    setLayout({"us", "-option", "compose:menu"});
    on.poster.tap(135);
    on.poster.tap(keyA);
    on.poster.tap(keyE);
    EXPECT_EQ(typed(), QString::fromUtf8("æ"));
}

TEST_F(X11ListeningTest, ALayoutThatChangesInTheMiddleOfAWordCountsFromThereOn)
{
    setLayout({"us"});
    // Not listened to in between, as when the main thread is busy.
    on.poster.tap(keyY);
    on.poster.tap(keyA);
    setLayout({"fr"});
    on.poster.tap(keyA);
    on.poster.tap(keyY);
    EXPECT_EQ(typed(), "yaqy");
}

TEST_F(X11ListeningTest, EventsAreDatedByTheClock)
{
    // The server counts whole milliseconds.
    const Seconds before = on.clock.now() - 0.002s;
    on.poster.move({10, 10});
    on.poster.tap(keyA);
    const Seconds after = on.clock.now();
    const std::vector<InputEvent> events = all();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_GE(events[0].time, before);
    EXPECT_LE(events[0].time, events[1].time);
    EXPECT_LE(events[1].time, after);
}

TEST_F(X11ListeningTest, AFloodIsHeardWholeAndInOrderByABusyProgram)
{
    std::vector<QPointF> posted;
    for (int i = 0; i < 5'000; ++i) {
        posted.push_back(QPointF(i % 600, i % 500));
        on.poster.move(posted.back().toPoint());
    }
    EXPECT_EQ(places(all()), posted);
}

TEST_F(X11ListeningTest, PlacesFollowThePrimaryDisplay)
{
    const QStringList lay{"-display",
                          QString::fromLocal8Bit(server.display()),
                          "--setmonitor",
                          "*right",
                          "600/200x600/150+200+0",
                          "none"};
    ASSERT_EQ(QProcess::execute("xrandr", lay), 0);
    on.poster.move({50, 60});
    ASSERT_TRUE(eventually([&] { return !heard.empty(); }));
    EXPECT_EQ(heard.back().point, QPointF(-150, 60));
}

TEST_F(X11ListeningTest, WhoeverHasTheKeyboardGetsAllTheSame)
{
    X11Connection other(server.display());
    const XReply<xcb_grab_keyboard_reply_t> grabbed(
        xcb_grab_keyboard_reply(other.get(),
                                xcb_grab_keyboard(other.get(), 0, other.root(), XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    ASSERT_TRUE(grabbed);
    ASSERT_EQ(grabbed->status, XCB_GRAB_STATUS_SUCCESS);
    on.poster.tap(keyA);
    EXPECT_EQ(typed(), "a") << "as when a menu is open";
    int presses = 0;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(other.get())})
        presses += event->response_type == XCB_KEY_PRESS ? 1 : 0;
    EXPECT_EQ(presses, 1);
}

TEST_F(X11ListeningTest, AServerThatGoesAwayEndsItOnceAfterWhatWasHeard)
{
    on.poster.tap(keyA);
    on.poster.tap(keyC);
    server.stop();
    ASSERT_TRUE(eventually([&] { return lost > 0; }));
    QString text;
    for (const InputEvent &event : heard)
        text += event.text;
    EXPECT_EQ(text, "ac");
    EXPECT_FALSE(on.tap.listen([](const InputEvent &) {}, [] {}));
    EXPECT_FALSE(on.keys.watch(KeyCode::escape, [] {}));
    token.reset();
    EXPECT_EQ(lost, 1);
}

TEST_F(X11ListeningTest, TwoListenersAreIndependent)
{
    int others = 0;
    Token second = on.tap.listen([&](const InputEvent &) { ++others; }, [] {});
    ASSERT_TRUE(second);
    on.poster.move({10, 10});
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(eventually([&] { return others == 2; }));
    second.reset();
    on.poster.move({20, 20});
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(others, 2);
}

TEST_F(X11ListeningTest, EndsCleanlyUnderAFloodAndBeginsAgain)
{
    std::atomic<bool> enough = false;
    std::thread flood([&] {
        InputPoster other(server.display());
        for (int i = 0; !enough; ++i)
            other.move({i % 600, i % 500});
    });
    for (int i = 0; i < 50; ++i) {
        token.reset();
        heard.clear();
        QCoreApplication::processEvents();
        EXPECT_TRUE(heard.empty());
        token = on.tap.listen([this](const InputEvent &event) { heard.push_back(event); }, [] {});
        ASSERT_TRUE(token);
        EXPECT_TRUE(eventually([&] { return !heard.empty(); }));
    }
    enough = true;
    flood.join();
}

TEST_F(X11ListeningTest, AWatcherIsCalledWhileTheMainThreadIsBusy)
{
    std::counting_semaphore<> presses(0);
    const Token watch = on.keys.watch(KeyCode::escape, [&] { presses.release(); });
    ASSERT_TRUE(watch);
    on.poster.tap(keyA);
    on.poster.chord({control}, escape);
    EXPECT_TRUE(presses.try_acquire_for(std::chrono::seconds(10)));
    EXPECT_FALSE(presses.try_acquire());
}

TEST_F(X11ListeningTest, AWatcherTellsOurPressesFromTheirsWhileBothPost)
{
    constexpr int each = 300;
    std::atomic<int> presses = 0;
    Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    std::thread others([&] {
        InputPoster other(server.display());
        for (int i = 0; i < each; ++i) {
            other.tap(escape);
            other.tap(keyA);
        }
    });
    // Two that press one key at the same time press it once: what counts is what was heard.
    std::atomic<int> escapes = 0;
    const Token count = on.listener.subscribe(
        [&](const X11HeardEvent &event) {
            escapes += event.type == XCB_KEY_PRESS && event.detail == escape ? 1 : 0;
        },
        [] {});
    for (int i = 0; i < each; ++i) {
        on.postedKeys.add(keyC);
        on.poster.tap(keyC);
    }
    others.join();
    all();
    EXPECT_EQ(presses, each);
    EXPECT_EQ(escapes, each);
}

TEST_F(X11ListeningTest, OurOwnEscDoesNotCountAndTheUsersDoes)
{
    std::atomic<int> presses = 0;
    Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    const auto ours = [&] {
        on.postedKeys.add(escape);
        on.poster.tap(escape);
    };
    ours();
    all();
    EXPECT_EQ(presses, 0);
    on.poster.tap(escape);
    ours();
    on.poster.tap(escape);
    all();
    EXPECT_EQ(presses, 2);
    watch.reset();
    on.poster.tap(escape);
    all();
    EXPECT_EQ(presses, 2);
}

TEST_F(X11ListeningTest, WhatWasPostedWhileNobodyListenedHidesNoEscLater)
{
    token.reset();
    on.postedKeys.add(escape);
    on.poster.tap(escape);
    std::atomic<int> presses = 0;
    const Token watch = on.keys.watch(KeyCode::escape, [&] { ++presses; });
    ASSERT_TRUE(watch);
    on.poster.tap(escape);
    EXPECT_TRUE(eventually([&] { return presses == 1; }));
}

TEST(X11Listening, AServerWithoutTheRecordExtensionRefuses)
{
    const TestServer server({"-extension", "RECORD"});
    Listening on(server.display());
    EXPECT_FALSE(on.tap.listen([](const InputEvent &) {}, [] {}));
    EXPECT_FALSE(on.keys.watch(KeyCode::escape, [] {}));
}

} // namespace velvane
