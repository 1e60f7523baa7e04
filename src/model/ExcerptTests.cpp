#include "model/Excerpt.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(Excerpt, ShortTextsStay)
{
    EXPECT_EQ(excerpt(u"né 👍"), QStringLiteral("né 👍"));
    EXPECT_EQ(excerpt(u""), QString());
}

TEST(Excerpt, LongTextsAreCut)
{
    EXPECT_EQ(excerpt(u"abcd", 3), QStringLiteral("abc…"));
    EXPECT_EQ(excerpt(u"abc", 3), QStringLiteral("abc"));
}

TEST(Excerpt, IsOneLineWithoutControlCharacters)
{
    EXPECT_EQ(excerpt(u"a\n\tb"), QStringLiteral("a b"));
    EXPECT_EQ(excerpt(u"a\u001b[1m"), QStringLiteral("a\uFFFD[1m"));
    EXPECT_EQ(excerpt(u"a\u202Eb"), QStringLiteral("a\uFFFDb"));
}

} // namespace velvane
