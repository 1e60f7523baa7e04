#include "capture/ShortcutRecorder.h"
#include "support/Print.h"
#include "support/Widgets.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct ShortcutRecorderTest : testing::Test {
    ShortcutRecorderTest()
    {
        QObject::connect(&recorder, &ShortcutRecorder::recorded,
                         [this](const KeyCombination &keys) { recorded << keys; });
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {})
    {
        Widgets::press(recorder, key, modifiers, text);
    }
    /// Sends an event of a key that stays down, or of the first moment; is it kept from everybody?
    bool takes(QEvent::Type type, bool isRepeat)
    {
        QKeyEvent event(type, Qt::Key_Return, Qt::ControlModifier, 36, 0, 0, {}, isRepeat);
        event.ignore();
        QApplication::sendEvent(&recorder, &event);
        return event.isAccepted();
    }

    ShortcutRecorder recorder;
    QList<KeyCombination> recorded;
};

} // namespace

TEST_F(ShortcutRecorderTest, SaysWhatToDo)
{
    EXPECT_EQ(recorder.label(), "Record shortcut");
    recorder.setDisplay("⌘C");
    EXPECT_EQ(recorder.label(), "⌘C");
    recorder.start();
    EXPECT_EQ(recorder.label(), "Press keys…");
}

TEST_F(ShortcutRecorderTest, IsAtLeast120Wide)
{
    EXPECT_GE(recorder.sizeHint().width(), 120);
}

TEST_F(ShortcutRecorderTest, TakesTheFirstKeyAndStops)
{
    recorder.show();
    recorder.click();
    press(Qt::Key_C, Qt::MetaModifier, "c");
    EXPECT_FALSE(recorder.isRecording());
    press(Qt::Key_D, Qt::MetaModifier, "d");
    ASSERT_EQ(recorded.size(), 1);
    EXPECT_EQ(recorded[0].keyCode, 8);
    EXPECT_EQ(recorded[0].modifiers, 0x100000U);
    EXPECT_EQ(recorded[0].characters, "C");
}

TEST_F(ShortcutRecorderTest, ABareKeyIsACombination)
{
    recorder.show();
    recorder.click();
    press(Qt::Key_F5);
    ASSERT_EQ(recorded.size(), 1);
    EXPECT_EQ(recorded[0].keyCode, 96);
    EXPECT_EQ(recorded[0].modifiers, 0U);
}

TEST_F(ShortcutRecorderTest, EscapeStopsAndRecordsNothing)
{
    recorder.show();
    recorder.click();
    press(Qt::Key_Escape);
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_TRUE(recorded.isEmpty());
}

TEST_F(ShortcutRecorderTest, AModifierAloneKeepsItRecording)
{
    recorder.show();
    recorder.click();
    press(Qt::Key_Control, Qt::ControlModifier);
    EXPECT_TRUE(recorder.isRecording());
}

TEST_F(ShortcutRecorderTest, TabAndSpaceAreRecordedToo)
{
    recorder.show();
    for (const int key : {int(Qt::Key_Tab), int(Qt::Key_Space), int(Qt::Key_Return)}) {
        recorder.start();
        press(key);
        EXPECT_FALSE(recorder.isRecording());
    }
    ASSERT_EQ(recorded.size(), 3);
    EXPECT_EQ(recorded[0].keyCode, 48);
    EXPECT_EQ(recorded[1].keyCode, 49);
    EXPECT_EQ(recorded[2].keyCode, 36);
}

TEST_F(ShortcutRecorderTest, ASecondClickStopsWithoutAChange)
{
    recorder.show();
    recorder.click();
    recorder.click();
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_TRUE(recorded.isEmpty());
}

TEST_F(ShortcutRecorderTest, TheKeyboardIsGrabbedWhileRecordingOnly)
{
    recorder.show();
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    recorder.click();
    EXPECT_EQ(QWidget::keyboardGrabber(), &recorder);
    press(Qt::Key_A);
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(ShortcutRecorderTest, HidingLetsGoOfTheKeyboard)
{
    recorder.show();
    recorder.click();
    recorder.hide();
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(ShortcutRecorderTest, NoShortcutTakesTheKeyWhileItRecords)
{
    recorder.show();
    QKeyEvent before(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    before.ignore();
    QApplication::sendEvent(&recorder, &before);
    EXPECT_FALSE(before.isAccepted());

    recorder.click();
    QKeyEvent during(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    during.ignore();
    QApplication::sendEvent(&recorder, &during);
    EXPECT_TRUE(during.isAccepted());
}

TEST_F(ShortcutRecorderTest, WhatTheKeyRepeatsThatEndedItReachesNobody)
{
    recorder.show();
    for (int n = 1; n <= 2; ++n) {
        recorder.click();
        EXPECT_TRUE(takes(QEvent::KeyPress, false));
        EXPECT_TRUE(takes(QEvent::ShortcutOverride, true));
        EXPECT_TRUE(takes(QEvent::KeyPress, true));
        EXPECT_FALSE(recorder.isRecording()) << "nor does Return start it again";
        EXPECT_EQ(recorded.size(), n);
    }
}

TEST_F(ShortcutRecorderTest, ThePointerOverItLeavesItsColorAlone)
{
    const auto fill = [this] { return recorder.grab().toImage().pixelColor(8, 4); };
    recorder.show();
    const QColor idle = fill();
    recorder.setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(fill(), idle);
    recorder.start();
    EXPECT_NE(fill(), idle);
}

} // namespace velvane
