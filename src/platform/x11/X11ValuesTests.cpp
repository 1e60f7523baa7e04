#include "platform/x11/X11Permissions.h"
#include "platform/x11/X11PostedKeys.h"
#include "platform/x11/X11Screens.h"
#include "platform/x11/X11Shell.h"
#include "platform/x11/X11WindowIcon.h"

#include "support/Print.h"

#include <QColor>

#include <gtest/gtest.h>

namespace velvane {

namespace {

std::vector<uint32_t> picture(uint32_t side, uint32_t pixel)
{
    std::vector<uint32_t> numbers{side, side};
    numbers.resize(2 + side * side, pixel);
    return numbers;
}

std::vector<uint32_t> joined(std::initializer_list<std::vector<uint32_t>> parts)
{
    std::vector<uint32_t> all;
    for (const std::vector<uint32_t> &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace

TEST(X11Displays, AreRelativeToThePrimaryWhichComesFirst)
{
    const auto displays = displaysOf(
        {{"left", {0, 0, 1280, 1024}, false}, {"right", {1280, 100, 1920, 1080}, true}}, {});
    ASSERT_EQ(displays.size(), 2U);
    EXPECT_EQ(displays[0].name, "right");
    EXPECT_TRUE(displays[0].primary);
    EXPECT_EQ(displays[0].frame, QRectF(0, 0, 1920, 1080));
    EXPECT_EQ(displays[1].frame, QRectF(-1280, -100, 1280, 1024));
    EXPECT_FALSE(displays[1].primary);
}

TEST(X11Displays, TheFirstIsPrimaryWhenNoneSaysSo)
{
    const std::vector<X11Monitor> monitors{{"a", {0, 0, 800, 600}, false},
                                           {"b", {800, 0, 800, 600}, false}};
    EXPECT_EQ(displaysOf(monitors, {}).front().name, "a");
    EXPECT_EQ(originOf(monitors), QPoint(0, 0));
}

TEST(X11Displays, TheVisibleAreaIsWhatPanelsLeaveFree)
{
    const auto displays =
        displaysOf({{"a", {0, 0, 1920, 1080}, true}, {"b", {1920, 0, 1280, 1024}, false}},
                   {0, 40, 3200, 1040});
    EXPECT_EQ(displays[0].visible, QRectF(0, 40, 1920, 1040));
    EXPECT_EQ(displays[1].visible, QRectF(1920, 40, 1280, 984));
}

TEST(X11Displays, ADisplayOutsideTheWorkAreaIsVisibleWhole)
{
    const auto displays = displaysOf(
        {{"a", {0, 0, 800, 600}, true}, {"b", {800, 0, 800, 600}, false}}, {0, 0, 800, 600});
    EXPECT_EQ(displays[1].visible, displays[1].frame);
}

TEST(X11Displays, NoMonitorsGiveNoDisplays)
{
    EXPECT_TRUE(displaysOf({}, {0, 0, 10, 10}).empty());
    EXPECT_EQ(originOf({}), QPoint());
}

TEST(X11WindowIcon, TheSmallestThatIsLargeEnoughIsTaken)
{
    const auto numbers = joined({picture(64, 0xff0000ff), picture(16, 0xffff0000),
                                 picture(32, 0xff00ff00), picture(48, 0xff000000)});
    EXPECT_EQ(pickIcon(numbers, 16).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(pickIcon(numbers, 24).size(), QSize(32, 32));
    EXPECT_EQ(pickIcon(numbers, 32).pixelColor(31, 31), QColor(Qt::green));
    EXPECT_EQ(pickIcon(numbers, 200).size(), QSize(64, 64));
}

TEST(X11WindowIcon, TransparencyIsKept)
{
    EXPECT_EQ(pickIcon(picture(16, 0x80ff0000), 16).pixelColor(3, 3), QColor(255, 0, 0, 128));
}

TEST(X11WindowIcon, MalformedNumbersEndTheReading)
{
    EXPECT_TRUE(pickIcon({}, 16).isNull());
    EXPECT_TRUE(pickIcon({16, 16}, 16).isNull());
    EXPECT_TRUE(pickIcon({16, 16, 1, 2, 3}, 16).isNull());
    EXPECT_TRUE(pickIcon({0, 5, 1}, 16).isNull());
    EXPECT_TRUE(pickIcon({0xffffffff, 0xffffffff, 1}, 16).isNull());
    EXPECT_TRUE(pickIcon({100000, 1, 1}, 16).isNull());
    const auto cut = joined({picture(16, 0xffff0000), {64, 64, 1, 2}});
    EXPECT_EQ(pickIcon(cut, 64).size(), QSize(16, 16)) << "what came before the fault counts";
}

TEST(X11PostedKeys, AsManyPressesAreOursAsWerePosted)
{
    X11PostedKeys keys;
    keys.setCounting(true);
    keys.add(9);
    keys.add(9);
    EXPECT_TRUE(keys.take(9));
    EXPECT_FALSE(keys.take(10)) << "another key";
    EXPECT_TRUE(keys.take(9));
    EXPECT_FALSE(keys.take(9));
}

TEST(X11PostedKeys, WhatNobodyCouldHearIsForgotten)
{
    X11PostedKeys keys;
    keys.add(9);
    keys.setCounting(true);
    EXPECT_FALSE(keys.take(9));
    keys.add(9);
    keys.setCounting(false);
    EXPECT_FALSE(keys.take(9));
}

TEST(X11Permissions, AreGrantedWhenNothingLacks)
{
    EXPECT_EQ(X11Permissions::explain(Permission::accessibility, true, false, {}), "");
}

TEST(X11Permissions, NameTheExtensionsThatLack)
{
    const QString text =
        X11Permissions::explain(Permission::screenRecording, true, false, {"Composite", "DAMAGE"});
    EXPECT_EQ(text, "Taking pictures of the screen takes what this X server lacks: Composite, "
                    "DAMAGE. Enable it in the server, and use a local or trusted connection.");
}

TEST(X11Permissions, AWaylandSessionIsSaidToBeOne)
{
    EXPECT_EQ(X11Permissions::explain(Permission::accessibility, true, true, {}),
              "Driving the mouse and keyboard reaches only X11 windows in a Wayland session. "
              "Log in with an X11 session instead.");
}

TEST(X11Permissions, PostingTakesListeningToo)
{
    EXPECT_TRUE(X11Permissions::extensions(Permission::accessibility).contains("RECORD"));
    EXPECT_EQ(X11Permissions::extensions(Permission::inputMonitoring), QList<QByteArray>{"RECORD"});
}

TEST(X11Shell, ASettingsAddressIsThePageOfItsPermission)
{
    const auto page = [](const char *address) { return X11Shell::settingsPage(QUrl(address)); };
    EXPECT_EQ(page(SettingsAddress::accessibility), Permission::accessibility);
    EXPECT_EQ(page(SettingsAddress::screenRecording), Permission::screenRecording);
    EXPECT_FALSE(X11Shell::settingsPage(QUrl("https://example.org/?Privacy_Accessibility")));
    EXPECT_FALSE(X11Shell::settingsPage(QUrl()));
}

} // namespace velvane
