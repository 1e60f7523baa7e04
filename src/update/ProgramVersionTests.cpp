#include "update/ProgramVersion.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

ProgramVersion version(const char *text)
{
    const auto read = ProgramVersion::fromString(QString::fromUtf8(text));
    EXPECT_TRUE(read) << text;
    return read.value_or(*ProgramVersion::fromString("0"));
}

} // namespace

TEST(ProgramVersion, VersionsAreOrderedOldestFirst)
{
    const char *const ordered[] = {"0.9",        "0.9.9",        "0.10",          "1.0.0-1",
                                   "1.0.0-2",    "1.0.0-10",     "1.0.0-alpha",   "1.0.0-alpha.1",
                                   "1.0.0-beta", "1.0.0-beta.2", "1.0.0-beta.11", "1.0.0-rc.1",
                                   "1.0.0",      "1.0.0.1",      "1.0.1",         "2"};
    for (std::size_t i = 0; i < std::size(ordered); ++i)
        for (std::size_t k = 0; k < std::size(ordered); ++k)
            EXPECT_EQ(version(ordered[i]) <=> version(ordered[k]), i <=> k)
                << ordered[i] << " and " << ordered[k];
}

TEST(ProgramVersion, MissingNumbersAreZeros)
{
    EXPECT_EQ(version("1.4"), version("1.4.0"));
    EXPECT_EQ(version("1.4"), version("01.04.0.0"));
}

TEST(ProgramVersion, WhatFollowsThePlusDoesNotCount)
{
    EXPECT_EQ(version("1.4+deb12"), version("1.4+a.b"));
    EXPECT_EQ(version("1.4-rc.1+7"), version("1.4-rc.1"));
}

TEST(ProgramVersion, NumbersLongerThanAnyIntegerCompare)
{
    EXPECT_LT(version("1.0-99999999999999999999"), version("1.0-100000000000000000000"));
    EXPECT_EQ(version("1.0-000000000000000000001"), version("1.0-1"));
}

TEST(ProgramVersion, KeepsItsText)
{
    EXPECT_EQ(version("01.4-rc.1+7").text(), "01.4-rc.1+7");
}

TEST(ProgramVersion, OtherTextsAreNoVersions)
{
    for (const char *text : {"", " ", "1.", ".1", "1..2", "v1", "1.0 ", "1.0\n", "1.0-", "1.0-a..b",
                             "1.0+", "-1", "1.2.3.4.5", "9999999999", "1.0-ä", "1,0", "one"})
        EXPECT_FALSE(ProgramVersion::fromString(QString::fromUtf8(text))) << text;
    EXPECT_FALSE(ProgramVersion::fromString("1.0-" + QString(61, u'a')));
}

} // namespace velvane
