#include "cli/Console.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane::cli {

TEST(Console, PrintableTextStaysOnOneLineAndSteersNoTerminal)
{
    EXPECT_EQ(printable(QString("a\nb\x1b[31m\x7f")), "a␊b␛[31m␡");
    EXPECT_EQ(printable(QString(QChar(0x9b)) + QChar(0x2028)), "\uFFFD\uFFFD");
    EXPECT_EQ(printable(QString::fromUtf8("né 한 👍")), "né 한 👍");
}

TEST(Console, PrintableTextIsNotEndlessButHoldsTheLongestPath)
{
    const QString path(4096, u'x');
    EXPECT_EQ(printable(path + ": no such file"), std::string(4096, 'x') + ": no such file");
    EXPECT_LT(printable(QString(1'000'000, u'x')).size(), 6000U);
}

} // namespace velvane::cli
