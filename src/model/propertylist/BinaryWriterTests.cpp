#include "model/propertylist/BinaryWriter.h"

#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/XmlReader.h"
#include "support/Print.h"
#include "support/Python.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// The objects of a file, without the magic, the table of offsets and the trailer.
QByteArray objects(const PropertyList &root)
{
    const QByteArray bytes = BinaryWriter::write(root);
    const qsizetype table = quint8(bytes[bytes.size() - 2]) << 8 | quint8(bytes.back());
    return bytes.sliced(8, table - 8).toHex().toUpper();
}

PropertyList everyType()
{
    const Array numbers{0,
                        255,
                        256,
                        65535,
                        65536,
                        4294967295LL,
                        4294967296LL,
                        -1,
                        std::numeric_limits<qint64>::min(),
                        std::numeric_limits<qint64>::max(),
                        quint64(1) << 63,
                        ~quint64(0),
                        0.1,
                        -0.0,
                        1e300};
    const Array texts{text(""),
                      text("abc"),
                      text("né"),
                      text("日本"),
                      text("👍🏽"),
                      QString(1000, QLatin1Char('x')),
                      QString(20, QChar(0x3042))};
    return Dictionary{{QStringLiteral("zeta"), numbers},
                      {QStringLiteral("alpha"), texts},
                      {QStringLiteral("clé"), Array{true, false, Array(), Dictionary()}},
                      {QStringLiteral("data"), QByteArray(300, '\x7f')},
                      {QStringLiteral("date"), PropertyList::Date{86400.5}}};
}

// The same in Python's words.
const QString pythonEveryType = QStringLiteral(R"(
import datetime, plistlib, sys
expected = {
    "zeta": [0, 255, 256, 65535, 65536, 4294967295, 4294967296, -1, -2**63, 2**63 - 1, 2**63,
             2**64 - 1, 0.1, -0.0, 1e300],
    "alpha": ["", "abc", "né", "日本", "👍🏽", "x" * 1000, "\u3042" * 20],
    "clé": [True, False, [], {}],
    "data": b"\x7f" * 300,
    "date": datetime.datetime(2001, 1, 2, 0, 0, 0, 500000),
}
def same(a, b):
    if type(a) is not type(b):
        return False
    if isinstance(a, dict):
        return list(a) == list(b) and all(same(a[key], b[key]) for key in a)
    if isinstance(a, list):
        return len(a) == len(b) and all(map(same, a, b))
    return repr(a) == repr(b)
)");

} // namespace

TEST(BinaryWriter, WritesEachTypeInItsShortestForm)
{
    EXPECT_EQ(objects(PropertyList()), "00");
    EXPECT_EQ(objects(false), "08");
    EXPECT_EQ(objects(true), "09");
    EXPECT_EQ(objects(255), "10FF");
    EXPECT_EQ(objects(256), "110100");
    EXPECT_EQ(objects(65536), "1200010000");
    EXPECT_EQ(objects(4294967296LL), "130000000100000000");
    EXPECT_EQ(objects(-1), "13FFFFFFFFFFFFFFFF");
    EXPECT_EQ(objects(quint64(1) << 63), "1400000000000000008000000000000000");
    EXPECT_EQ(objects(1.5), "233FF8000000000000");
    EXPECT_EQ(objects(PropertyList::Date{100}), "334059000000000000");
    EXPECT_EQ(objects(PropertyList::Uid{5}), "8005");
    EXPECT_EQ(objects(PropertyList::Uid{70000}), "8300011170");
    EXPECT_EQ(objects(QByteArray("ab")), "426162");
    EXPECT_EQ(objects(text("ab")), "526162");
    EXPECT_EQ(objects(text("é")), "6100E9");
    EXPECT_EQ(objects(Array{true, 7}), "A20102091007");
}

TEST(BinaryWriter, CountsFrom15OnStandApart)
{
    EXPECT_EQ(objects(QString(14, QLatin1Char('a'))), "5E" + QByteArray("61").repeated(14));
    EXPECT_EQ(objects(QString(15, QLatin1Char('a'))), "5F100F" + QByteArray("61").repeated(15));
    EXPECT_EQ(objects(QByteArray(256, 'a')).first(8), "4F110100");
}

TEST(BinaryWriter, EqualKeysTextsAndNumbersAreWrittenOnce)
{
    const auto key = QStringLiteral("k");
    const Dictionary entry{{key, text("k")}};
    EXPECT_EQ(objects(Array{entry, entry, 1, 1, true, true}),
              "A6010304040505D10202516BD10202100109");
}

TEST(BinaryWriter, EqualBitsOfDifferentTypesStayApart)
{
    const PropertyList root(Array{1, true, PropertyList::Uid{1}, 0, 0.0, PropertyList::Date{0},
                                  PropertyList(), false, -0.0});
    EXPECT_EQ(BinaryReader::read(BinaryWriter::write(root)), root);
    EXPECT_EQ(objects(root).first(20), "A9010203040506070809");
}

TEST(BinaryWriter, ReferencesGrowWithTheNumberOfObjects)
{
    for (const int count : {1, 254, 255, 256, 65534, 65535, 65536}) {
        Array items;
        for (int i = 0; i < count; ++i)
            items << i;
        const PropertyList root(items);
        const QByteArray bytes = BinaryWriter::write(root);
        // The array is an object too.
        const int expected = count <= 255 ? 1 : count <= 65535 ? 2 : 4;
        EXPECT_EQ(int(bytes[bytes.size() - 25]), expected) << count;
        EXPECT_EQ(BinaryReader::read(bytes), root) << count;
    }
}

TEST(BinaryWriter, WhatIsWrittenIsReadBackEqual)
{
    EXPECT_EQ(BinaryReader::read(BinaryWriter::write(everyType())), everyType());
}

TEST(BinaryWriter, AHalfSurrogateStays)
{
    const PropertyList half(QString(QChar(0xD83D)));
    EXPECT_EQ(BinaryReader::read(BinaryWriter::write(half)), half);
}

TEST(BinaryWriter, AnIndependentReaderReadsTheSameValues)
{
    const QByteArray printed = pythonOutput(
        pythonEveryType
            + QStringLiteral("print(same(plistlib.loads(sys.stdin.buffer.read()), expected))"),
        BinaryWriter::write(everyType()));
    EXPECT_EQ(printed, "True\n");
}

TEST(BinaryReader, ReadsWhatAnIndependentWriterWrites)
{
    const QByteArray bytes =
        pythonOutput(pythonEveryType
                     + QStringLiteral("sys.stdout.buffer.write(plistlib.dumps(expected, "
                                      "fmt=plistlib.FMT_BINARY, sort_keys=False))"));
    EXPECT_EQ(BinaryReader::read(bytes), everyType());
}

TEST(XmlReader, ReadsWhatAnIndependentWriterWrites)
{
    // XML has no fractions of a second.
    const QByteArray bytes =
        pythonOutput(pythonEveryType
                     + QStringLiteral("expected['date'] = datetime.datetime(2001, 1, 2)\n"
                                      "sys.stdout.buffer.write(plistlib.dumps(expected, "
                                      "sort_keys=False))"));
    Dictionary expected = *everyType().as<Dictionary>();
    expected.last().value = PropertyList::Date{86400};
    EXPECT_EQ(XmlReader::read(bytes), PropertyList(expected));
}

} // namespace velvane
