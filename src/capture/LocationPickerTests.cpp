#include "capture/LocationPicker.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class LocationPickerTest : public testing::Test {
protected:
    void pick(int seconds)
    {
        picker.pick(seconds, [this](QPointF place) { captured << place; });
    }

    void tick(int times)
    {
        for (int i = 0; i < times; ++i)
            picker.tick();
    }

    static void settle() { QCoreApplication::processEvents(); }

    /// The panels on show.
    static QList<StatusPanel *> panels()
    {
        QList<StatusPanel *> found;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *panel = qobject_cast<StatusPanel *>(widget);
            if (panel && panel->isVisible())
                found << panel;
        }
        return found;
    }

    static QString label() { return panels().isEmpty() ? QString() : panels().first()->text(); }

    SimulatedDesktop desktop;
    LocationPicker picker{desktop};
    QList<QPointF> captured;
};

} // namespace

TEST_F(LocationPickerTest, ThePanelHasItsOwnSizeAndRoundness)
{
    const QSize size(500, 56);
    const StatusPanel wanted(desktop.screens(), size, 14);
    const StatusPanel lessRound(desktop.screens(), size, 13);
    pick(1);
    ASSERT_EQ(panels().size(), 1);
    EXPECT_EQ(panels().first()->size(), size);
    EXPECT_EQ(panels().first()->mask(), wanted.mask());
    EXPECT_NE(wanted.mask(), lessRound.mask());
}

TEST_F(LocationPickerTest, OneSecondShowsOneAndCapturesAtTheFirstTick)
{
    desktop.screens().setPointer({30, 40});
    pick(1);
    EXPECT_EQ(label(), "Position the cursor over the target — grabbing in 1s · Esc to cancel");
    EXPECT_TRUE(captured.isEmpty());
    tick(1);
    EXPECT_EQ(captured, QList<QPointF>({{30, 40}}));
    EXPECT_TRUE(panels().isEmpty());
    EXPECT_FALSE(picker.isPicking());
}

TEST_F(LocationPickerTest, TenSecondsCountDownToOneAndCaptureAtTheTenthTick)
{
    pick(10);
    for (int left = 10; left > 1; --left) {
        EXPECT_TRUE(label().contains(QString("in %1s").arg(left))) << label().toStdString();
        tick(1);
    }
    EXPECT_TRUE(label().contains("in 1s"));
    EXPECT_TRUE(captured.isEmpty());
    tick(1);
    EXPECT_EQ(captured.size(), 1);
}

TEST_F(LocationPickerTest, ThePlaceIsTheOneAtTheEndOfTheCountdown)
{
    desktop.screens().setPointer({1, 2});
    pick(2);
    tick(1);
    desktop.screens().setPointer({700, 100});
    tick(1);
    EXPECT_EQ(captured, QList<QPointF>({{700, 100}}));
}

TEST_F(LocationPickerTest, PlacesAreCountedFromThePrimaryDisplaysTopLeft)
{
    Display primary = *desktop.screens().primaryDisplay();
    Display left = primary;
    left.frame.translate(-1920, -200);
    left.primary = false;
    desktop.screens().setDisplays({primary, left});
    for (const QPointF place : {QPointF(5, 100), QPointF(-1500, -150)}) {
        desktop.screens().setPointer(place);
        pick(1);
        tick(1);
        EXPECT_EQ(captured.takeLast(), place);
    }
}

TEST_F(LocationPickerTest, ASecondPickDropsTheFirst)
{
    int first = 0;
    picker.pick(2, [&](QPointF) { ++first; });
    tick(1);
    pick(2);
    EXPECT_EQ(panels().size(), 1);
    EXPECT_TRUE(label().contains("in 2s"));
    tick(2);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(captured.size(), 1);
    EXPECT_EQ(desktop.keys().watches(), 0);
}

TEST_F(LocationPickerTest, EscapeEndsItWithoutACall)
{
    pick(10);
    tick(3);
    desktop.press(KeyCode::escape);
    settle();
    EXPECT_FALSE(picker.isPicking());
    EXPECT_TRUE(panels().isEmpty());
    EXPECT_EQ(desktop.keys().watches(), 0);
    tick(20);
    EXPECT_TRUE(captured.isEmpty());
}

TEST_F(LocationPickerTest, OtherKeysDoNotEndIt)
{
    pick(10);
    desktop.press(KeyCode::space);
    settle();
    EXPECT_TRUE(picker.isPicking());
}

TEST_F(LocationPickerTest, AnEscapeOfAnEarlierPickLeavesTheNextOneAlone)
{
    pick(10);
    desktop.press(KeyCode::escape);
    pick(10);
    settle();
    EXPECT_TRUE(picker.isPicking());
    tick(10);
    EXPECT_EQ(captured.size(), 1);
}

TEST_F(LocationPickerTest, WithoutADisplayThereIsNoPlace)
{
    pick(1);
    desktop.screens().setDisplays({});
    tick(1);
    EXPECT_TRUE(captured.isEmpty());
    EXPECT_FALSE(picker.isPicking());
}

TEST_F(LocationPickerTest, WhereEscapeCannotBeWatchedForItStillEndsByItself)
{
    desktop.keys().setMissing("no");
    pick(1);
    tick(1);
    EXPECT_EQ(captured.size(), 1);
}

TEST_F(LocationPickerTest, WhoIsCalledMayPickAgain)
{
    picker.pick(1, [this](QPointF) { pick(1); });
    tick(1);
    EXPECT_TRUE(picker.isPicking());
    tick(1);
    EXPECT_EQ(captured.size(), 1);
}

TEST_F(LocationPickerTest, DestroyedWhileItCountsItLeavesNothingBehind)
{
    auto another = std::make_unique<LocationPicker>(desktop);
    another->pick(10, [this](QPointF place) { captured << place; });
    desktop.press(KeyCode::escape);
    another.reset();
    settle();
    EXPECT_TRUE(panels().isEmpty());
    EXPECT_EQ(desktop.keys().watches(), 0);
}

} // namespace velvane
