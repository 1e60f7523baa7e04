#include "media/H264MovieWriter.h"

#include "media/MovieError.h"

#include "support/Print.h"

#include <gtest/gtest.h>

#include <climits>

namespace velvane {

namespace {

// Why such a movie is refused; empty when it is not.
QString refusal(QSize size, int fps)
{
    try {
        H264MovieWriter::check(size, fps);
    } catch (const MovieError &error) {
        EXPECT_EQ(error.cause(), MovieError::Cause::size);
        return error.reason();
    }
    return {};
}

} // namespace

TEST(H264MovieWriterLimits, SizesAndRatesWithinTheLevelPass)
{
    EXPECT_EQ(refusal({1, 1}, 1), "");
    EXPECT_EQ(refusal({1920, 1080}, 60), "");
    EXPECT_EQ(refusal({16'384, 2'176}, 120), "");
    EXPECT_EQ(refusal({16, 16}, 16'711'680), "");
}

TEST(H264MovieWriterLimits, ImpossibleSidesAreRefused)
{
    for (const QSize size : {QSize(0, 10),
                             {10, 0},
                             {-5, 10},
                             {16'385, 1},
                             {1, 16'385},
                             {1'000'000, 1'000'000},
                             {INT_MAX, INT_MAX}}) {
        const QString reason = refusal(size, 30);
        EXPECT_TRUE(reason.contains(QString::number(size.width()))) << reason.toStdString();
        EXPECT_TRUE(reason.contains(QStringLiteral("16384"))) << reason.toStdString();
        EXPECT_FALSE(reason.contains(QLatin1Char('\n')));
    }
}

TEST(H264MovieWriterLimits, TooManyMacroblocksInAFrameAreRefused)
{
    EXPECT_EQ(refusal({16'384, 2'177}, 1), "a movie of 16384 × 2177 pixels is not possible: it has "
                                           "140288 macroblocks, and H.264 allows 139264");
}

TEST(H264MovieWriterLimits, TooManyMacroblocksInASecondAreRefused)
{
    EXPECT_EQ(refusal({16'384, 2'176}, 121),
              "a movie of 16384 × 2176 pixels at 121 frames per second is not possible: it has "
              "16850944 macroblocks per second, and H.264 allows 16711680");
    EXPECT_NE(refusal({16, 16}, INT_MAX), "");
}

TEST(H264MovieWriterLimits, RatesBelowOneAreRefused)
{
    EXPECT_EQ(refusal({64, 48}, 0), "0 frames per second are not possible: at least 1");
    EXPECT_NE(refusal({64, 48}, INT_MIN), "");
}

} // namespace velvane
