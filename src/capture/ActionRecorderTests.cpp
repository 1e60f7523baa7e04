#include "capture/ActionRecorder.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Kind = InputEvent::Kind;

class ActionRecorderTest : public testing::Test {
protected:
    bool prepare() { return recorder.prepare({1280, 800}, {640, 400}); }
    void hear(Kind kind, QPointF point)
    {
        desktop.tap().hear({.kind = kind, .point = point, .time = desktop.clock().now()});
    }
    void click(QPointF point)
    {
        hear(Kind::leftMouseDown, point);
        hear(Kind::leftMouseUp, point);
    }

    QTimer &dwellTimer() { return *recorder.findChild<QTimer *>(); }

    SimulatedDesktop desktop;
    ActionRecorder recorder{desktop};
};

} // namespace

TEST_F(ActionRecorderTest, PreparedItListensAndSaysSoAndRecordsNothing)
{
    ASSERT_TRUE(prepare());
    EXPECT_EQ(desktop.tap().listeners(), 1);
    EXPECT_EQ(recorder.panelText(), "● Recording — Esc to stop");
    click({100, 100});
    desktop.press(0, 0, "a");
    EXPECT_TRUE(recorder.finish().isEmpty());
    EXPECT_EQ(desktop.tap().listeners(), 0);
    EXPECT_EQ(recorder.panelText(), "");
}

TEST_F(ActionRecorderTest, ATimerLooksForARestingPointerWhileCapturing)
{
    ASSERT_TRUE(prepare());
    EXPECT_FALSE(dwellTimer().isActive());
    recorder.setCapturing(true);
    EXPECT_TRUE(dwellTimer().isActive());
    EXPECT_FALSE(dwellTimer().isSingleShot());
    EXPECT_EQ(dwellTimer().interval(), 80);
    hear(Kind::mouseMoved, {100, 100});
    desktop.clock().advance(0.35s);
    QMetaObject::invokeMethod(&dwellTimer(), "timeout");
    recorder.setCapturing(false);
    EXPECT_FALSE(dwellTimer().isActive());
    recorder.setCapturing(true);
    const QList<Step> steps = recorder.finish();
    EXPECT_FALSE(dwellTimer().isActive());
    ASSERT_EQ(steps.size(), 1);
    EXPECT_EQ(steps[0].kind, StepKind::move);
    EXPECT_EQ(steps[0].point, QPointF(100, 100));
}

TEST_F(ActionRecorderTest, RefusedItLeavesNothingBehind)
{
    desktop.permissions().setGranted(Permission::inputMonitoring, false);
    EXPECT_FALSE(prepare());
    EXPECT_EQ(desktop.tap().listeners(), 0);
    EXPECT_EQ(recorder.panelText(), "");
    desktop.apps().run({.name = "Notes"});
    desktop.apps().switchTo("Notes");
    EXPECT_TRUE(recorder.finish().isEmpty());
}

TEST_F(ActionRecorderTest, WhileCapturingInputAndSwitchesBecomeSteps)
{
    desktop.apps().run({.name = "Notes"});
    desktop.clock().advance(7s);
    ASSERT_TRUE(prepare());
    desktop.clock().advance(2s);
    recorder.setCapturing(true);
    desktop.clock().advance(1s);
    click({100, 100});
    desktop.apps().switchTo("Notes");
    desktop.press(0, 0, "a");
    const QList<Step> steps = recorder.finish();
    ASSERT_EQ(steps.size(), 4);
    EXPECT_EQ(steps[0].kind, StepKind::move);
    EXPECT_EQ(steps[0].recordedOffset, 1s);
    EXPECT_EQ(steps[1].kind, StepKind::click);
    EXPECT_EQ(steps[2].text, "Notes");
    EXPECT_EQ(steps[3].text, "a");
}

TEST_F(ActionRecorderTest, TheTimerMakesAMoveOfARestingPointer)
{
    ASSERT_TRUE(prepare());
    recorder.setCapturing(true);
    hear(Kind::mouseMoved, {100, 100});
    desktop.clock().advance(0.3s);
    recorder.tick();
    desktop.clock().advance(0.08s);
    recorder.tick();
    recorder.tick();
    const QList<Step> steps = recorder.finish();
    ASSERT_EQ(steps.size(), 1);
    EXPECT_EQ(steps[0].point, QPointF(100, 100));
}

TEST_F(ActionRecorderTest, CapturingCanBeSwitchedOff)
{
    ASSERT_TRUE(prepare());
    recorder.setCapturing(true);
    click({640, 400});
    recorder.setCapturing(false);
    click({640, 400});
    EXPECT_EQ(recorder.finish().size(), 1);
}

TEST_F(ActionRecorderTest, WhatWasRecordedBeforeTheListeningIsLostIsKept)
{
    int lost = 0;
    QObject::connect(&recorder, &ActionRecorder::lost, [&] { ++lost; });
    ASSERT_TRUE(prepare());
    recorder.setCapturing(true);
    click({640, 400});
    desktop.tap().lose();
    EXPECT_EQ(lost, 1);
    EXPECT_EQ(recorder.finish().size(), 1);
}

TEST_F(ActionRecorderTest, WithoutWordOfSwitchesTheRestIsRecorded)
{
    desktop.apps().setMissing("No window manager.");
    ASSERT_TRUE(prepare());
    recorder.setCapturing(true);
    click({640, 400});
    EXPECT_EQ(recorder.finish().size(), 1);
}

TEST_F(ActionRecorderTest, UnpreparedItHasNothingToEnd)
{
    recorder.setCapturing(true);
    recorder.tick();
    recorder.setPanelText("text");
    EXPECT_TRUE(recorder.finish().isEmpty());
}

TEST_F(ActionRecorderTest, FloodsAreRecordedWholeAndInOrder)
{
    ASSERT_TRUE(prepare());
    recorder.setCapturing(true);
    constexpr int count = 20000;
    for (int i = 0; i < count; ++i) {
        hear(Kind::mouseMoved, {double(i % 100), 100});
        desktop.press(0, 0, QString(QChar('a' + i % 26)));
    }
    click({1000, 700});
    const QList<Step> steps = recorder.finish();
    ASSERT_EQ(steps.size(), 3);
    EXPECT_EQ(steps[0].text.size(), count);
    EXPECT_TRUE(steps[0].text.startsWith("abcdefghijklmnopqrstuvwxyzabc"));
    EXPECT_EQ(steps[0].duration, 4.0s);
}

} // namespace velvane
