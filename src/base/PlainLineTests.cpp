#include "base/PlainLine.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(PlainLine, HarmlessTextStays)
{
    for (const char *text : {"", "né 한 👍", "👨‍👩‍👧‍👦",
                             "🏴\U000E0067\U000E0062\U000E007F", "می\u200Cخواهم"})
        EXPECT_EQ(plainLine(QString::fromUtf8(text)), QString::fromUtf8(text));
}

TEST(PlainLine, ControlCharactersAreShownAsPictures)
{
    EXPECT_EQ(plainLine(u"a\nb\r\n\x1b[31m\x7f"), u"a␊b␍␊␛[31m␡");
    EXPECT_EQ(plainLine(QString(QChar(0x9B))), u"\uFFFD");
    EXPECT_EQ(plainLine(u"a\u2028b\u2029"), u"a\uFFFDb\uFFFD");
}

TEST(PlainLine, NothingTurnsTheDirectionOrHides)
{
    EXPECT_EQ(plainLine(u"a\u202Eb\u2066c\u200Fd\u200Be\uFEFF"),
              u"a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFD");
    EXPECT_EQ(plainLine(u"\u200D👍"), u"\uFFFD👍") << "a joiner that joins nothing";
}

TEST(PlainLine, HalvesOfCharactersAreReplaced)
{
    EXPECT_EQ(plainLine(u"\xD83D"
                        u"a"),
              u"\uFFFDa");
}

TEST(PlainLine, LongTextIsCutBetweenCharacters)
{
    EXPECT_EQ(plainLine(u"abcd", 3), u"abc…");
    EXPECT_EQ(plainLine(u"abc", 3), u"abc");
    EXPECT_EQ(plainLine(u"👍🏽👍🏽👍🏽", 2), u"👍🏽👍🏽…");
    EXPECT_EQ(plainLine(u"e\u0301e\u0301", 1), u"e\u0301…");
}

TEST(PlainLine, AccentsPiledUpWithoutEndAreCutToo)
{
    const QString line = plainLine(QString(1'000'000, QChar(0x301)), 3);
    EXPECT_LT(line.size(), 100);
    EXPECT_TRUE(line.endsWith(u'…'));
}

TEST(WithVisibleBreaks, EachLineBreakOfWhateverKindIsOneSign)
{
    EXPECT_EQ(withVisibleBreaks("one\ntwo\r\nthree\rfour"), "one⏎two⏎three⏎four");
    EXPECT_EQ(withVisibleBreaks(QStringLiteral(u"one\u2028two\u2029three")), "one⏎two⏎three");
    EXPECT_EQ(withVisibleBreaks("\n\n"), "⏎⏎");
    EXPECT_EQ(withVisibleBreaks("one line"), "one line");
}

} // namespace velvane
