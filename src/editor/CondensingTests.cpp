#include "editor/Condensing.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(Condensing, AWideWindowHasRoomForEverything)
{
    const Condensing room = Condensing::of(1200, 720);
    EXPECT_EQ(room, Condensing());
    EXPECT_EQ(room.sidebarWidth, 300);
    EXPECT_EQ(room.inspectorWidth, 280);
}

TEST(Condensing, Below1200TheRunOptionsAreAnIcon)
{
    const Condensing room = Condensing::of(1199, 720);
    EXPECT_TRUE(room.iconRunOptions);
    EXPECT_FALSE(room.iconBackdrops);
    EXPECT_EQ(room.sidebarWidth, 264);
    EXPECT_EQ(room.inspectorWidth, 256);
    EXPECT_EQ(room.stageMargin, 16);
}

TEST(Condensing, Below1080TheBackdropsAreIconsToo)
{
    const Condensing room = Condensing::of(1079, 720);
    EXPECT_TRUE(room.iconRunOptions);
    EXPECT_TRUE(room.iconBackdrops);
    EXPECT_EQ(room.sidebarWidth, 244);
    EXPECT_EQ(room.inspectorWidth, 240);
    EXPECT_EQ(room.stageMargin, 12);
    EXPECT_EQ(room.labelColumn, 60);
}

TEST(Condensing, ALowWindowHasAMenuInPlaceOfTheAddGrid)
{
    EXPECT_FALSE(Condensing::of(960, 720).addMenu);
    EXPECT_TRUE(Condensing::of(1440, 719).addMenu);
}

} // namespace velvane
