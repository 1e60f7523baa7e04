#include "model/propertylist/XmlReader.h"

#include "support/Print.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velvane {

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList read(const QByteArray &value)
{
    return XmlReader::read("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                           "<plist version=\"1.0\">"
                           + value + "</plist>");
}

// Of a document of one line.
QString refusal(const QByteArray &document)
{
    const QString message = refusalOf([&] { XmlReader::read(document); });
    const auto start = QStringLiteral("damaged property list: line 1, column ");
    EXPECT_TRUE(message.startsWith(start)) << message.toStdString();
    return message.mid(start.size());
}

} // namespace

TEST(XmlReader, ReadsTruthsAndTexts)
{
    EXPECT_EQ(read("<true/>"), PropertyList(true));
    EXPECT_EQ(read("<false></false>"), PropertyList(false));
    EXPECT_EQ(read("<string> a &lt; \n b </string>"), PropertyList(QStringLiteral(" a < \n b ")));
    EXPECT_EQ(read("<string/>"), PropertyList(QString()));
    EXPECT_EQ(read("<string><![CDATA[<&>]]></string>"), PropertyList(QStringLiteral("<&>")));
    EXPECT_EQ(read("<string>n\xC3\xA9 &#x1F44D;</string>"), PropertyList(QStringLiteral("né 👍")));
}

TEST(XmlReader, ReadsIntegersOf64Bits)
{
    EXPECT_EQ(read("<integer>0</integer>"), PropertyList(0));
    EXPECT_EQ(read("<integer> +7\n</integer>"), PropertyList(7));
    EXPECT_EQ(read("<integer>-9223372036854775808</integer>"),
              PropertyList(std::numeric_limits<qint64>::min()));
    EXPECT_EQ(read("<integer>18446744073709551615</integer>"), PropertyList(~quint64(0)));
    EXPECT_EQ(read("<integer>0x7F</integer>"), PropertyList(127));
    EXPECT_EQ(read("<integer>-0x1</integer>"), PropertyList(-1));
}

TEST(XmlReader, ReadsReals)
{
    EXPECT_EQ(read("<real>0.1</real>"), PropertyList(0.1));
    EXPECT_EQ(read("<real> -1e10 </real>"), PropertyList(-1e10));
    EXPECT_EQ(read("<real>2</real>"), PropertyList(2.0));
    EXPECT_TRUE(std::isnan(*read("<real>nan</real>").as<double>()));
    EXPECT_TRUE(std::isinf(*read("<real>-inf</real>").as<double>()));
}

TEST(XmlReader, ReadsDataAndDates)
{
    EXPECT_EQ(read("<data>\n\tAAEC\n\tAw==\n</data>"), PropertyList(QByteArray("\0\1\2\3", 4)));
    EXPECT_EQ(read("<data/>"), PropertyList(QByteArray()));
    EXPECT_EQ(read("<date>2001-01-01T00:01:40Z</date>"), PropertyList(PropertyList::Date{100}));
    EXPECT_EQ(read("<date>2000-12-31T00:00:00Z</date>"), PropertyList(PropertyList::Date{-86400}));
}

TEST(XmlReader, ReadsArraysAndDictionariesInTheOrderOfTheFile)
{
    EXPECT_EQ(read("<array/>"), PropertyList(Array()));
    EXPECT_EQ(read("<dict/>"), PropertyList(Dictionary()));
    const PropertyList expected(
        Dictionary{{QStringLiteral("b"), Array{1, true}},
                   {QStringLiteral("a"), Dictionary{{QString(), QStringLiteral("c")}}}});
    EXPECT_EQ(read("<dict> <key>b</key> <array> <integer>1</integer> <true/> </array>"
                   "<!-- between --> <key>a</key> <dict><key/><string>c</string></dict> </dict>"),
              expected);
}

TEST(XmlReader, EqualKeysShareTheirText)
{
    const PropertyList root = read("<array><dict><key>kind</key><true/></dict>"
                                   "<dict><key>kind</key><true/></dict></array>");
    const Array &items = *root.as<Array>();
    EXPECT_EQ(items[0].as<Dictionary>()->first().key.constData(),
              items[1].as<Dictionary>()->first().key.constData());
}

TEST(XmlReader, TheValueMayStandWithoutItsEnvelope)
{
    EXPECT_EQ(XmlReader::read("<dict/>"), PropertyList(Dictionary()));
}

TEST(XmlReader, ReadsUtf16)
{
    const auto document = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><string>né</string></plist>");
    QByteArray bytes("\xFF\xFE", 2);
    for (const QChar c : document)
        bytes.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
    EXPECT_EQ(XmlReader::read(bytes), PropertyList(QStringLiteral("né")));
}

TEST(XmlReader, SaysLineAndColumn)
{
    EXPECT_EQ(refusalOf([] { XmlReader::read("<plist>\n<dict>\n  <foo/>\n</dict></plist>"); }),
              "damaged property list: line 3, column 8: unknown element “foo”");
}

TEST(XmlReader, RefusesADictionaryWithoutOrder)
{
    EXPECT_EQ(refusal("<dict><key>a</key></dict>"), "25: a key without a value");
    EXPECT_EQ(refusal("<dict><key>a</key><key>b</key><true/></dict>"), "23: a key without a value");
    EXPECT_EQ(refusal("<dict><true/></dict>"), "13: a value without a key");
    EXPECT_EQ(refusal("<dict><array/></dict>"), "14: a value without a key");
    EXPECT_EQ(refusal("<array><key>a</key></array>"), "12: a key outside of a dictionary");
    EXPECT_EQ(refusal("<plist><key>a</key></plist>"), "12: a key outside of a dictionary");
}

TEST(XmlReader, RefusesTextAndElementsOutOfPlace)
{
    EXPECT_EQ(refusal("<array>a</array>"), "9: text outside of a value");
    EXPECT_EQ(refusal("<array><true>a</true></array>"), "21: text outside of a value");
    EXPECT_EQ(refusal("<array><plist/></array>"), "15: unknown element “plist”");
    EXPECT_EQ(refusal("<html/>"), "7: unknown element “html”");
    EXPECT_EQ(refusal("<plist><true/><true/></plist>"), "21: more than one value");
    EXPECT_EQ(refusal("<plist/>"), "8: no value");
    EXPECT_EQ(refusal("<string>a<true/></string>"), "16: an element inside of a text");
}

TEST(XmlReader, RefusesValuesThatAreNotTheirType)
{
    for (const char *number : {"", " ", "a", "1.5", "--1", "+-1", "0x", "0xg", "1 2", "true",
                               "18446744073709551616", "-9223372036854775809"}) {
        EXPECT_TRUE(refusal(QByteArray("<integer>") + number + "</integer>")
                        .endsWith(QStringLiteral(": an integer that is no number of 64 bits")))
            << number;
    }
    for (const char *number : {"", "a", "1,5", "1e", "0x1"}) {
        EXPECT_TRUE(refusal(QByteArray("<real>") + number + "</real>")
                        .endsWith(QStringLiteral(": a real that is no number")))
            << number;
    }
    for (const char *date : {"", "today", "2001-01-01", "2001-13-01T00:00:00Z"}) {
        EXPECT_TRUE(refusal(QByteArray("<date>") + date + "</date>")
                        .endsWith(QStringLiteral(": a date that is none")))
            << date;
    }
    EXPECT_EQ(refusal("<data>A*</data>"), "15: data that is not base64");
    EXPECT_EQ(refusal("<data>AA\xC4\x80=</data>"), "17: data that is not base64");
}

TEST(XmlReader, MessagesQuoteNoMoreThanALine)
{
    const QByteArray name(1000, 'x');
    EXPECT_LT(refusal("<" + name + "/>").size(), 100);
    EXPECT_LT(refusal("<?xml version=\"1.0\" encoding=\"" + name + "\"?><dict/>").size(), 150);
}

TEST(XmlReader, RefusesNestingOf100000)
{
    const QByteArray document = QByteArray("<array>").repeated(100'000);
    EXPECT_EQ(refusal(document), "3591: nested too deeply");
}

TEST(XmlReader, ReadsNestingAsDeepAsTheLimit)
{
    PropertyList value = XmlReader::read(QByteArray("<array>").repeated(PropertyList::maxDepth)
                                         + QByteArray("</array>").repeated(PropertyList::maxDepth));
    for (int i = 1; i < PropertyList::maxDepth; ++i)
        value = PropertyList(value.as<Array>()->constFirst());
    EXPECT_EQ(value, PropertyList(Array()));
}

TEST(XmlReader, RefusesWhatTakesTooMuchMemory)
{
    const auto count = PropertyList::maxMemory / PropertyList::sharedMemory;
    EXPECT_TRUE(refusal("<array>" + QByteArray("<array/>").repeated(count))
                    .endsWith(QStringLiteral(": too much for the memory")));
}

TEST(XmlReader, RefusesTooManyValues)
{
    const auto count = qsizetype(PropertyList::maxValues) + 1;
    const QString message = refusal("<array>" + QByteArray("<true/>").repeated(count));
    EXPECT_TRUE(message.endsWith(QStringLiteral(": too many values"))
                || message.endsWith(QStringLiteral(": too much for the memory")));
}

TEST(XmlReader, RefusesATextThatIsTooLong)
{
    const QByteArray text(9'000'000, 'x');
    EXPECT_TRUE(refusal("<string>" + text + "</string>")
                    .endsWith(QStringLiteral(": a text that is too long")));
    EXPECT_EQ(
        XmlReader::read("<string>" + text.first(8'000'000) + "</string>").as<QString>()->size(),
        8'000'000);
}

TEST(XmlReader, RefusesEntitiesThatExpandToBillions)
{
    QByteArray document = "<!DOCTYPE plist [<!ENTITY a0 \"ha\">";
    for (int i = 1; i <= 30; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
        document += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner + inner + "\">";
    }
    EXPECT_TRUE(refusal(document + "]><plist><string>&a30;</string></plist>")
                    .contains(QStringLiteral("entity")));
}

TEST(XmlReader, RefusesEveryTruncation)
{
    const QByteArray document = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>a</key>"
                                "<array><integer>1</integer><real>2.5</real><string>né</string>"
                                "<data>AAEC</data><date>2001-01-01T00:00:00Z</date><true/>"
                                "</array></dict></plist>";
    ASSERT_NO_THROW(XmlReader::read(document));
    for (qsizetype size = 0; size < document.size(); ++size)
        EXPECT_THROW(XmlReader::read(document.first(size)), DocumentError) << size;
}

} // namespace velvane
