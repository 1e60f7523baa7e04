#include "X11ListeningFixture.h"

#include <numeric>
#include <thread>

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

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

TEST(X11Listening, AServerWithoutTheRecordExtensionRefuses)
{
    const TestServer server({"-extension", "RECORD"});
    Listening on(server.display());
    EXPECT_FALSE(on.tap.listen([](const InputEvent &) {}, [] {}));
    EXPECT_FALSE(on.keys.watch(KeyCode::escape, [] {}));
}

} // namespace velvane
