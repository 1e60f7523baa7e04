#include "capture/StatusPanel.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSize size(360, 52);
constexpr double radius = 13;

} // namespace

TEST(StatusPanel, ItLiesCentredFortyBelowTheTopOfTheVisibleArea)
{
    const Display display{.frame = {0, 0, 1920, 1080}, .visible = {0, 32, 1920, 1048}};
    EXPECT_EQ(StatusPanel::place(display, {0, 0, 1920, 1080}, size), QRect(780, 72, 360, 52));
}

TEST(StatusPanel, ADockAtTheSideMovesItsCentre)
{
    const Display display{.frame = {0, 0, 1920, 1080}, .visible = {100, 0, 1820, 1080}};
    EXPECT_EQ(StatusPanel::place(display, {0, 0, 1920, 1080}, size).left(), 1010 - 180);
}

TEST(StatusPanel, OnAScaledSecondDisplayItIsPlacedInLogicalPixels)
{
    // Twice as many pixels as logical ones, and right of a display of its own scale.
    const Display display{.frame = {1920, 0, 3840, 2160}, .visible = {1920, 64, 3840, 2096}};
    EXPECT_EQ(StatusPanel::place(display, {960, 0, 1920, 1080}, size),
              QRect(960 + 780, 32 + 40, 360, 52));
}

TEST(StatusPanel, AScreenWithoutASizeIsNoDivisionByZero)
{
    const Display display{.frame = {0, 0, 1920, 1080}, .visible = {0, 0, 1920, 1080}};
    EXPECT_EQ(StatusPanel::place(display, {}, size).top(), 40);
}

TEST(StatusPanel, ItTakesNeitherClicksNorKeysNorTheFocus)
{
    SimulatedDesktop desktop;
    const StatusPanel panel(desktop.screens(), size, radius);
    const Qt::WindowFlags flags = panel.windowFlags();
    EXPECT_TRUE(flags & Qt::WindowTransparentForInput);
    EXPECT_TRUE(flags & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(flags & Qt::BypassWindowManagerHint);
    EXPECT_TRUE(flags & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(panel.testAttribute(Qt::WA_ShowWithoutActivating));
    // It is no reason for the program to stay, nor to end.
    EXPECT_FALSE(panel.testAttribute(Qt::WA_QuitOnClose));
}

TEST(StatusPanel, ItShowsATextAndThenAnother)
{
    SimulatedDesktop desktop;
    StatusPanel panel(desktop.screens(), size, radius);
    EXPECT_FALSE(panel.isVisible());
    panel.showText("one");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.size(), size);
    panel.showText("two");
    EXPECT_EQ(panel.text(), "two");
    EXPECT_EQ(panel.accessibleName(), "two");
}

TEST(StatusPanel, ItIsDarkWithWhiteTextAndRoundCorners)
{
    SimulatedDesktop desktop;
    StatusPanel panel(desktop.screens(), size, radius);
    panel.showText("●●●●●●●●");
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    panel.render(&picture, {}, {}, QWidget::RenderFlags());
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(180, 2), QColor(0, 0, 0, 209));
    bool anyWhite = false;
    for (int x = 16; x < 344; ++x)
        anyWhite |= picture.pixelColor(x, 26).lightness() > 200;
    EXPECT_TRUE(anyWhite);
}

TEST(StatusPanel, WithoutADisplayItIsShownAllTheSame)
{
    SimulatedDesktop desktop;
    desktop.screens().setDisplays({});
    StatusPanel panel(desktop.screens(), size, radius);
    panel.showText("text");
    EXPECT_TRUE(panel.isVisible());
}

} // namespace velvane
