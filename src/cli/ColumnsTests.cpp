#include "cli/Columns.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane::cli {

TEST(Columns, EastAsianCharactersTakeTwo)
{
    EXPECT_EQ(Columns::width("Step"), 4);
    EXPECT_EQ(Columns::width(QString::fromUtf8("é⌘✓")), 3);
    EXPECT_EQ(Columns::width(QString::fromUtf8("サーバー")), 8);
    EXPECT_EQ(Columns::width(QString::fromUtf8("步骤 1")), 6);
}

TEST(Columns, BlanksFillAColumn)
{
    EXPECT_EQ(Columns::left("Rate", 6), "Rate  ");
    EXPECT_EQ(Columns::right("Rate", 6), "  Rate");
    EXPECT_EQ(Columns::left(QString::fromUtf8("画面"), 6), QString::fromUtf8("画面  "));
    EXPECT_EQ(Columns::right(QString::fromUtf8("画面"), 6), QString::fromUtf8("  画面"));
}

TEST(Columns, CutTextFitsItsColumns)
{
    EXPECT_EQ(Columns::cut("Rate", 4), "Rate");
    EXPECT_EQ(Columns::cut("Rates", 4), QString::fromUtf8("Rat…"));
    EXPECT_EQ(Columns::cut(QString::fromUtf8("画面を"), 6), QString::fromUtf8("画面を"));
    EXPECT_EQ(Columns::cut(QString::fromUtf8("画面を見"), 6), QString::fromUtf8("画面…"));
    EXPECT_EQ(Columns::cut(QString::fromUtf8("e\u0301e\u0301e"), 2), QString::fromUtf8("e\u0301…"));
    EXPECT_EQ(Columns::cut("", 3), "");
}

TEST(Columns, LongerTextStaysAsItIs)
{
    EXPECT_EQ(Columns::left("Rate", 3), "Rate");
    EXPECT_EQ(Columns::right(QString::fromUtf8("画面"), 3), QString::fromUtf8("画面"));
}

} // namespace velvane::cli
