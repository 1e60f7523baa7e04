#include "cli/ProgressBar.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velvane::cli {

TEST(ProgressBar, WritesALineForEveryTenthWhenNotOnATerminal)
{
    std::ostringstream out;
    {
        ProgressBar bar(out, false, 100, "frames");
        for (int i = 1; i <= 100; ++i)
            bar.show(i / 100.0, Seconds(i));
    }
    EXPECT_EQ(out.str(), " 10 %\n 20 %\n 30 %\n 40 %\n 50 %\n 60 %\n 70 %\n 80 %\n 90 %\n100 %\n");
}

TEST(ProgressBar, DrawsOverItsLineWithRateAndTimeLeft)
{
    std::ostringstream out;
    {
        ProgressBar bar(out, true, 600, "frames");
        bar.show(0.5, 3s);
    }
    EXPECT_EQ(out.str(), "\r━━━━━━━━━━━━━━━───────────────  50 %  100 frames/s  3 s left\n");
}

TEST(ProgressBar, IsNotDrawnMoreOftenThanAnyoneSees)
{
    std::ostringstream out;
    ProgressBar bar(out, true, 600, "frames");
    bar.show(0.1, 1.00s);
    bar.show(0.2, 1.01s);
    EXPECT_EQ(out.str().find("20 %"), std::string::npos);
    bar.show(1.0, 1.02s);
    EXPECT_NE(out.str().find("100 %"), std::string::npos) << "the end is always shown";
}

TEST(ProgressBar, TimesReadLikeSpeech)
{
    EXPECT_EQ(readable(0s), "0 s");
    EXPECT_EQ(readable(41.2s), "42 s");
    EXPECT_EQ(readable(185s), "3 min 05 s");
    EXPECT_EQ(readable(7800s), "2 h 10 min");
    EXPECT_EQ(readable(Seconds(1e300)), "99 h 59 min");
}

} // namespace velvane::cli
