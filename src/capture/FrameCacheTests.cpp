#include "capture/FrameCache.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

MoviePicture pictureAt(double seconds)
{
    return {nullptr, {}, Seconds(seconds)};
}

} // namespace

TEST(FrameCache, KeysAreHundredthsOfASecond)
{
    EXPECT_EQ(FrameCache::key(Seconds(1.004)), 100);
    EXPECT_EQ(FrameCache::key(Seconds(1.006)), 101);
    EXPECT_EQ(FrameCache::key(Seconds(0.996)), 100);
    EXPECT_EQ(FrameCache::key(Seconds(0)), 0);
}

TEST(FrameCache, APictureIsFoundUnderItsKeyOnly)
{
    FrameCache cache;
    cache.store(7, pictureAt(0.07));
    ASSERT_NE(cache.find(7), nullptr);
    EXPECT_EQ(cache.find(7)->time(), Seconds(0.07));
    EXPECT_EQ(cache.find(8), nullptr);
}

TEST(FrameCache, The121stKeyLetsTheFirstGoEvenIfItWasJustLookedAt)
{
    FrameCache cache;
    for (int i = 0; i < 120; ++i)
        cache.store(i, pictureAt(i));
    EXPECT_NE(cache.find(0), nullptr);
    cache.store(120, pictureAt(120));
    EXPECT_EQ(cache.count(), 120U);
    EXPECT_EQ(cache.find(0), nullptr);
    EXPECT_NE(cache.find(1), nullptr);
}

TEST(FrameCache, AKeyStoredAgainKeepsItsPlaceAndHasTheNewPicture)
{
    FrameCache cache;
    for (int i = 0; i < 120; ++i)
        cache.store(i, pictureAt(i));
    cache.store(0, pictureAt(5));
    EXPECT_EQ(cache.count(), 120U);
    EXPECT_EQ(cache.find(0)->time(), Seconds(5));
    cache.store(120, pictureAt(120));
    EXPECT_EQ(cache.find(0), nullptr);
}

TEST(FrameCache, ClearedItIsEmptyAndStartsAnew)
{
    FrameCache cache;
    for (int i = 0; i < 100; ++i)
        cache.store(i, pictureAt(i));
    cache.clear();
    EXPECT_EQ(cache.count(), 0U);
    for (int i = 200; i < 320; ++i)
        cache.store(i, pictureAt(i));
    EXPECT_NE(cache.find(200), nullptr);
}

} // namespace velvane
