#include "cli/Console.h"

#include <gtest/gtest.h>

namespace velvane::cli {

TEST(Console, PrintableTextStaysOnOneLineAndSteersNoTerminal)
{
    EXPECT_EQ(printable(QString("a\nb\x1b[31m\x7f")), "a␊b␛[31m␡");
    EXPECT_EQ(printable(QString(QChar(0x9b)) + QChar(0x2028)), "\uFFFD\uFFFD");
    EXPECT_EQ(printable(QString::fromUtf8("né 한 👍")), "né 한 👍");
}

TEST(Console, PrintableTextIsNotEndless)
{
    EXPECT_EQ(printable(QString(1000, 'x'), 5), "xxxxx…");
}

} // namespace velvane::cli
