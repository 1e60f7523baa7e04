#include "platform/simulated/SimulatedDesktop.h"

#include "base/Background.h"
#include "base/KeyCode.h"
#include "support/Print.h"
#include "support/RunToEnd.h"

#include <gtest/gtest.h>

#include <atomic>

namespace velvane {

namespace {

AppInfo app(const QString &name)
{
    AppInfo info;
    info.name = name;
    return info;
}

QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::blue);
    return image;
}

} // namespace

TEST(SimulatedDesktop, PostedInputIsLoggedWithItsVirtualTime)
{
    SimulatedDesktop desktop;
    desktop.input().moveTo({10, 20}, false);
    desktop.clock().sleep(0.5s);
    desktop.input().press(MouseButton::left, {10, 20});
    desktop.input().moveTo({11, 20}, true);
    desktop.input().release(MouseButton::left, {11, 20});

    const std::vector<InputEvent> posted = desktop.posted();
    ASSERT_EQ(posted.size(), 4U);
    EXPECT_EQ(posted[0].kind, InputEvent::Kind::mouseMoved);
    EXPECT_EQ(posted[0].time, 0s);
    EXPECT_EQ(posted[1].time, 0.5s);
    EXPECT_EQ(posted[2].kind, InputEvent::Kind::leftMouseDragged);
    EXPECT_EQ(desktop.log(), QStringList({"mouseMoved 10,20", "leftMouseDown 10,20",
                                          "leftMouseDragged 11,20", "leftMouseUp 11,20"}));
    EXPECT_EQ(desktop.screens().pointer(), QPointF(11, 20));
}

TEST(SimulatedDesktop, AShortcutIsPressedAndReleasedWithTheFourModifiersOnly)
{
    SimulatedDesktop desktop;
    desktop.input().pressKey(8, Modifier::command | 0x10000);
    EXPECT_EQ(desktop.log(), QStringList({"keyDown 8 +0x100000", "keyUp 8 +0x100000"}));
}

TEST(SimulatedDesktop, ACharacterOfSeveralCodeUnitsIsOnePress)
{
    SimulatedDesktop desktop;
    const QString flag = QString::fromUtf8("🇩🇪");
    desktop.input().beginTyping(flag)->post(flag);
    ASSERT_EQ(desktop.posted().size(), 2U);
    EXPECT_EQ(desktop.posted()[0].text, flag);
    EXPECT_EQ(desktop.posted()[1].kind, InputEvent::Kind::keyUp);
}

TEST(SimulatedDesktop, PointsThatAreNotFiniteAreSkipped)
{
    SimulatedDesktop desktop;
    desktop.input().moveTo({qQNaN(), 0}, false);
    desktop.input().press(MouseButton::right, {0, qInf()});
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST(SimulatedDesktop, OneLogHoldsInputAndWhatIsDoneToApplications)
{
    SimulatedDesktop desktop;
    desktop.apps().run(app("Notes"));
    const quint64 window = desktop.windows().add({0, app("Notes"), "Untitled", {5, 5, 200, 100}});
    desktop.shell().hide();
    desktop.apps().activate(app("Notes"));
    desktop.windows().moveWindow(window, {100, 50});
    desktop.input().press(MouseButton::right, {1, 2});
    desktop.apps().hide(app("Notes"));
    desktop.shell().unhide();
    EXPECT_EQ(desktop.log(), QStringList({"hide ourselves", "activate Notes", "moveWindow 1 100,50",
                                          "rightMouseDown 1,2", "hide Notes", "unhide ourselves"}));
    EXPECT_EQ(desktop.posted().size(), 1U);
    EXPECT_EQ(desktop.windows().windows()[0].frame, QRectF(100, 50, 200, 100));
    EXPECT_FALSE(desktop.windows().windows()[0].onScreen);
}

TEST(SimulatedDesktop, WhatIsNotThereIsSkippedSilently)
{
    SimulatedDesktop desktop;
    desktop.apps().activate(app("Nobody"));
    desktop.apps().launch(app("Nobody"));
    desktop.windows().moveWindow(77, {0, 0});
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST(SimulatedDesktop, LaunchingAnInstalledApplicationRunsAndActivatesIt)
{
    SimulatedDesktop desktop;
    desktop.apps().install(app("Notes"));
    QStringList active;
    const Token watch = desktop.apps().watchActivations(
        [&](const AppInfo &activated) { active << activated.name; });
    desktop.apps().launch(app("Notes"));
    EXPECT_EQ(active, QStringList("Notes"));
    ASSERT_EQ(desktop.apps().running().size(), 1U);
    EXPECT_GT(desktop.apps().running()[0].pid, 0);
}

TEST(SimulatedDesktop, ActivatingBringsAllWindowsForwardInTheirOrder)
{
    SimulatedDesktop desktop;
    desktop.apps().run(app("Notes"));
    desktop.windows().add({1, app("Mail")});
    desktop.windows().add({2, app("Notes")});
    desktop.windows().add({3, app("Mail")});
    desktop.windows().add({4, app("Notes")});
    desktop.apps().activate(app("Notes"));
    std::vector<quint64> order;
    for (const WindowInfo &window : desktop.windows().windows())
        order.push_back(window.id);
    EXPECT_EQ(order, std::vector<quint64>({2, 4, 1, 3}));
}

TEST(SimulatedDesktop, AWatchSeesItsKeyUntilItsTokenEnds)
{
    SimulatedDesktop desktop;
    int presses = 0;
    Token watch = desktop.keys().watch(KeyCode::escape, [&] { ++presses; });
    desktop.press(KeyCode::escape);
    desktop.press(KeyCode::space);
    EXPECT_EQ(presses, 1);
    watch.reset();
    desktop.press(KeyCode::escape);
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(desktop.keys().watches(), 0);
}

TEST(SimulatedDesktop, AnEscapePostedByTheProgramItselfDoesNotCount)
{
    SimulatedDesktop desktop;
    int presses = 0;
    const Token watch = desktop.keys().watch(KeyCode::escape, [&] { ++presses; });
    desktop.input().pressKey(KeyCode::escape, 0);
    EXPECT_EQ(presses, 0);
}

TEST(SimulatedDesktop, AScheduledPressIsSeenByAWorkerInTheMiddleOfItsSleep)
{
    SimulatedDesktop desktop;
    std::atomic<bool> cancelled = false;
    const Token watch = desktop.keys().watch(KeyCode::escape, [&] { cancelled = true; });
    desktop.clock().at(1s, [&] { desktop.press(KeyCode::escape); });
    runToEnd(inBackground([&] {
        while (!cancelled)
            desktop.clock().sleep(0.3s);
    }));
    EXPECT_DOUBLE_EQ(desktop.clock().now().count(), 1.2);
}

TEST(SimulatedDesktop, TheTapHearsTheUserAndThePoster)
{
    SimulatedDesktop desktop;
    QStringList heard;
    const Token tap = desktop.tap().listen([&](const InputEvent &event) { heard << line(event); },
                                           [&] { heard << "lost"; });
    ASSERT_TRUE(tap);
    desktop.press(0, 0, "a");
    desktop.tap().hear({InputEvent::Kind::leftMouseDown, {3, 4}});
    desktop.input().pressKey(8, Modifier::command);
    desktop.tap().lose();
    EXPECT_EQ(heard,
              QStringList({"keyDown \"a\"", "leftMouseDown 3,4", "keyDown 8 +0x100000", "lost"}));
}

TEST(SimulatedDesktop, TheTapIsRefusedWithoutPermission)
{
    SimulatedDesktop desktop;
    desktop.permissions().setGranted(Permission::inputMonitoring, false);
    EXPECT_FALSE(desktop.tap().listen([](const InputEvent &) {}, [] {}));
}

TEST(SimulatedDesktop, APermissionIsWithheldUntilTheUserGrantsIt)
{
    SimulatedDesktop desktop;
    desktop.permissions().setGranted(Permission::accessibility, false);
    EXPECT_FALSE(desktop.permissions().request(Permission::accessibility));
    EXPECT_FALSE(desktop.permissions().explanation(Permission::accessibility).isEmpty());
    desktop.permissions().setAnswer(Permission::accessibility, true);
    EXPECT_TRUE(desktop.permissions().request(Permission::accessibility));
    EXPECT_TRUE(desktop.permissions().granted(Permission::accessibility));
    EXPECT_EQ(desktop.log(), QStringList({"request accessibility", "request accessibility"}));
}

TEST(SimulatedDesktop, AStreamGetsItsRegionOfWhatTheScreenShows)
{
    SimulatedDesktop desktop;
    std::vector<Frame> frames;
    CaptureRequest request;
    request.region = QRectF(10, 10, 20, 20);
    CaptureOpening opening = desktop.capture().open(
        request, [&](const Frame &frame) { frames.push_back(frame); }, [](const QString &) {});
    ASSERT_TRUE(opening.stream);
    EXPECT_TRUE(opening.error.isEmpty());
    desktop.clock().sleep(2s);
    desktop.capture().show(picture(100, 80), QRect(0, 0, 15, 15));
    ASSERT_EQ(frames.size(), 1U);
    EXPECT_EQ(frames[0].image.size(), QSize(20, 20));
    EXPECT_EQ(frames[0].changed, QRegion(0, 0, 20, 20));
    EXPECT_EQ(frames[0].time, 2s);
    desktop.capture().show(picture(100, 80), QRect(0, 0, 15, 15));
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[1].changed, QRegion(0, 0, 5, 5));
}

TEST(SimulatedDesktop, AStreamThatCannotOpenSaysWhy)
{
    SimulatedDesktop desktop;
    const auto open = [&] {
        return desktop.capture().open(
            {}, [](const Frame &) {}, [](const QString &) {});
    };
    desktop.capture().failWith("No display to record");
    EXPECT_EQ(open().error, "No display to record");
    desktop.permissions().setGranted(Permission::screenRecording, false);
    EXPECT_FALSE(open().stream);
    desktop.capture().setMissing("There is no capture here.");
    EXPECT_EQ(open().error, "There is no capture here.");
}

TEST(SimulatedDesktop, AMissingFacilitySaysWhyAndDoesNothing)
{
    SimulatedDesktop desktop;
    EXPECT_TRUE(desktop.input().missing().isEmpty());
    desktop.input().setMissing("Nothing can be posted here.");
    desktop.keys().setMissing("No key can be watched here.");
    desktop.input().moveTo({1, 1}, false);
    EXPECT_EQ(desktop.input().missing(), "Nothing can be posted here.");
    EXPECT_FALSE(desktop.keys().watch(KeyCode::escape, [] {}));
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST(SimulatedDesktop, TheMainDisplayIsTheOneWithTheKeyboard)
{
    SimulatedDesktop desktop;
    Display left;
    left.frame = QRectF(-1280, 0, 1280, 1024);
    desktop.screens().setDisplays({desktop.screens().displays().front(), left});
    EXPECT_TRUE(desktop.screens().mainDisplay()->primary);
    desktop.screens().setMain(1);
    EXPECT_EQ(desktop.screens().mainDisplay()->frame.left(), -1280);
    EXPECT_TRUE(desktop.screens().primaryDisplay()->primary);
}

} // namespace velvane
