#include "base/Graphemes.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

struct Sample {
    const char *text;
    qsizetype characters;
};

class GraphemeCount : public testing::TestWithParam<Sample> {};

TEST_P(GraphemeCount, IsWhatAReaderWouldCount)
{
    EXPECT_EQ(Graphemes::count(QString::fromUtf8(GetParam().text)), GetParam().characters);
}

INSTANTIATE_TEST_SUITE_P(Texts, GraphemeCount,
                         testing::Values(Sample{"", 0}, Sample{"Hello", 5}, Sample{"e\u0301a", 2},
                                         Sample{"한국어", 3}, Sample{"\u1112\u1161\u11ab", 1},
                                         Sample{"🇩🇪🇫🇷", 2}, Sample{"👨‍👩‍👧‍👦!", 2},
                                         Sample{"👍🏽", 1}, Sample{"a\r\nb", 3},
                                         Sample{"नि", 1}));

TEST(Graphemes, PrefixNeverCutsACharacter)
{
    const QString text = QString::fromUtf8("a👨‍👩‍👧‍👦e\u0301🇩🇪z");
    EXPECT_EQ(Graphemes::prefix(text, 0), "");
    EXPECT_EQ(Graphemes::prefix(text, -1), "");
    EXPECT_EQ(Graphemes::prefix(text, 2), QString::fromUtf8("a👨‍👩‍👧‍👦"));
    EXPECT_EQ(Graphemes::prefix(text, 3), QString::fromUtf8("a👨‍👩‍👧‍👦e\u0301"));
    EXPECT_EQ(Graphemes::prefix(text, 4),
              QString::fromUtf8("a👨‍👩‍👧‍👦e\u0301🇩🇪"));
    EXPECT_EQ(Graphemes::prefix(text, 99), text);
}

TEST(Graphemes, SplitJoinsBackToTheText)
{
    const QString text = QString::fromUtf8("né👍🏽 한🇯🇵");
    EXPECT_EQ(Graphemes::split(text).size(), Graphemes::count(text));
    EXPECT_EQ(Graphemes::split(text).join(QString()), text);
}

} // namespace velvane
