#include "editor/LiveOverlay.h"
#include "support/Print.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class LiveOverlayTest : public testing::Test {
protected:
    LiveOverlayTest() { window.resize(800, 600); }

    QWidget window;
    LiveOverlay overlay{&window};
};

} // namespace

TEST_F(LiveOverlayTest, AtFirstItIsHidden)
{
    EXPECT_TRUE(overlay.isHidden());
    EXPECT_TRUE(overlay.lines().isEmpty());
}

TEST_F(LiveOverlayTest, TheCountdownNamesTheFirstApplication)
{
    overlay.setCountdown(3, QStringLiteral("Invoices"));
    EXPECT_FALSE(overlay.isHidden());
    EXPECT_EQ(overlay.lines(), QStringList({"3", "Switching to Invoices", "Press Esc to abort"}));
}

TEST_F(LiveOverlayTest, WithoutAnApplicationTheCountdownSaysWhatComes)
{
    overlay.setCountdown(2);
    EXPECT_EQ(overlay.lines(),
              QStringList({"2", "Driving the real cursor — bring your target app forward",
                           "Press Esc to abort"}));
}

TEST_F(LiveOverlayTest, TheCountdownDimsTheWholeWindowAndTakesItsClicks)
{
    overlay.setCountdown(1);
    EXPECT_EQ(overlay.geometry(), window.rect());
    EXPECT_FALSE(overlay.testAttribute(Qt::WA_TransparentForMouseEvents));
    window.show();
    window.resize(1000, 700);
    EXPECT_EQ(overlay.geometry(), QRect(0, 0, 1000, 700));
}

TEST_F(LiveOverlayTest, ItCoversWhatLiesAroundTheEditorToo)
{
    QWidget editor(&window);
    editor.setGeometry(0, 30, 800, 570);
    LiveOverlay inside(&editor);
    inside.setStage({200, 44, 400, 300});
    inside.setRunning(true);
    EXPECT_EQ(inside.parentWidget(), &window);
    EXPECT_EQ(inside.geometry(), window.rect());
    EXPECT_EQ(inside.capsule().top(), 82);
}

TEST_F(LiveOverlayTest, WhileRunningACapsuleLiesAtTheTopOfTheStage)
{
    overlay.setStage({200, 44, 400, 300});
    overlay.setCountdown(1);
    overlay.setCountdown(0);
    overlay.setRunning(true);
    EXPECT_EQ(overlay.lines(), QStringList("Live run in progress — Esc to stop"));
    EXPECT_TRUE(overlay.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(overlay.capsule().top(), 52);
    EXPECT_NEAR(overlay.capsule().center().x(), 400, 1);
    EXPECT_GE(overlay.capsule().height(), 34);
}

TEST_F(LiveOverlayTest, AfterTheRunItIsHiddenAgain)
{
    overlay.setRunning(true);
    overlay.setRunning(false);
    EXPECT_TRUE(overlay.isHidden());
}

} // namespace velvane
