#include "model/propertylist/BinaryReader.h"

#include "support/RawBinary.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList read(const QList<QByteArray> &objects)
{
    return BinaryReader::read(RawBinary{objects}.bytes());
}

} // namespace

TEST(BinaryReader, ReadsTheConstants)
{
    EXPECT_EQ(read({hex("00")}), PropertyList());
    EXPECT_EQ(read({hex("08")}), PropertyList(false));
    EXPECT_EQ(read({hex("09")}), PropertyList(true));
}

TEST(BinaryReader, ReadsIntegersOfAllSizes)
{
    EXPECT_EQ(read({hex("10FF")}), PropertyList(255));
    EXPECT_EQ(read({hex("11FFFF")}), PropertyList(65535));
    EXPECT_EQ(read({hex("12FFFFFFFF")}), PropertyList(4294967295LL));
    EXPECT_EQ(read({hex("13FFFFFFFFFFFFFFFF")}), PropertyList(-1));
    EXPECT_EQ(read({hex("138000000000000000")}), PropertyList(std::numeric_limits<qint64>::min()));
    EXPECT_EQ(read({hex("140000000000000000FFFFFFFFFFFFFFFF")}), PropertyList(~quint64(0)));
    EXPECT_EQ(read({hex("140000000000000000") + hex("0000000000000007")}), PropertyList(7));
    EXPECT_EQ(read({hex("14FFFFFFFFFFFFFFFF") + hex("FFFFFFFFFFFFFFFE")}), PropertyList(-2));
}

TEST(BinaryReader, ReadsRealsOfBothSizes)
{
    EXPECT_EQ(read({hex("223FC00000")}), PropertyList(1.5));
    EXPECT_EQ(read({hex("23BFF8000000000000")}), PropertyList(-1.5));
}

TEST(BinaryReader, ReadsDatesDataAndIdentifiers)
{
    EXPECT_EQ(read({hex("334059000000000000")}), PropertyList(PropertyList::Date{100}));
    EXPECT_EQ(read({hex("43000102")}), PropertyList(hex("000102")));
    EXPECT_EQ(read({hex("8005")}), PropertyList(PropertyList::Uid{5}));
    EXPECT_EQ(read({hex("870000000000000100")}), PropertyList(PropertyList::Uid{256}));
}

TEST(BinaryReader, ReadsAsciiAndUtf16Texts)
{
    EXPECT_EQ(read({hex("53616263")}), PropertyList(QStringLiteral("abc")));
    EXPECT_EQ(read({hex("50")}), PropertyList(QString()));
    EXPECT_EQ(read({hex("6400E965E5D83DDC4D")}), PropertyList(QStringLiteral("é日👍")));
}

TEST(BinaryReader, ReadsLongCounts)
{
    const QByteArray text(300, 'x');
    EXPECT_EQ(read({hex("5F11012C") + text}), PropertyList(QString::fromLatin1(text)));
    EXPECT_EQ(read({hex("4F10020102")}), PropertyList(hex("0102")));
}

TEST(BinaryReader, ReadsArraysAndTakesSetsForArrays)
{
    const PropertyList expected(Array{true, 7});
    EXPECT_EQ(read({hex("A20102"), hex("09"), hex("1007")}), expected);
    EXPECT_EQ(read({hex("B20102"), hex("09"), hex("1007")}), expected);
    EXPECT_EQ(read({hex("C20102"), hex("09"), hex("1007")}), expected);
}

TEST(BinaryReader, ReadsDictionariesInTheOrderOfTheFile)
{
    const PropertyList expected(Dictionary{{QStringLiteral("b"), 7}, {QStringLiteral("a"), true}});
    EXPECT_EQ(read({hex("D201020304"), hex("5162"), hex("5161"), hex("1007"), hex("09")}),
              expected);
}

TEST(BinaryReader, ResolvesASharedObjectOnce)
{
    const PropertyList root = read({hex("A20101"), hex("A102"), hex("53616263")});
    const Array &items = *root.as<Array>();
    EXPECT_EQ(items[0].as<Array>()->constData(), items[1].as<Array>()->constData());
}

TEST(BinaryReader, TheTopObjectMayBeAnyOne)
{
    EXPECT_EQ(BinaryReader::read(RawBinary{.objects = {hex("08"), hex("09")}, .top = 1}.bytes()),
              PropertyList(true));
}

TEST(BinaryReader, OffsetsAndReferencesMayHaveOddSizes)
{
    const RawBinary file{
        .objects = {hex("A1000001"), hex("1007")}, .offsetSize = 7, .referenceSize = 3};
    EXPECT_EQ(BinaryReader::read(file.bytes()), PropertyList(Array{7}));
}

TEST(BinaryReader, RefusesWhatIsNoBinaryPropertyList)
{
    EXPECT_EQ(refusalOf([] { BinaryReader::read("<plist/>"); }),
              "damaged property list: no binary property list");
    EXPECT_EQ(refusalOf([] { BinaryReader::read("bplist00"); }),
              "damaged property list: too short, 8 bytes");
}

TEST(BinaryReader, RefusesATrailerThatDoesNotFit)
{
    const QList<QByteArray> one{hex("09")};
    EXPECT_EQ(refusal({.objects = one, .offsetSize = 0}),
              "damaged property list: trailer at byte 9: offset size out of range");
    EXPECT_EQ(refusal({.objects = one, .referenceSize = 9}),
              "damaged property list: trailer at byte 13: reference size out of range");
    EXPECT_EQ(refusal({.objects = one, .top = 1}),
              "damaged property list: trailer at byte 13: top object out of range");
    for (const quint64 table : {quint64(0), quint64(8), quint64(13), ~quint64(0)}) {
        EXPECT_EQ(refusal({.objects = one, .table = table}),
                  "damaged property list: trailer at byte 13: offset table out of range");
    }
    for (const quint64 count : {quint64(0), quint64(2), quint64(1) << 62, ~quint64(0)}) {
        EXPECT_EQ(refusal({.objects = one, .count = count}),
                  "damaged property list: trailer at byte 13: object count and offset table do not "
                  "fit together");
    }
}

TEST(BinaryReader, RefusesMoreObjectsThanBytes)
{
    const RawBinary file{.objects = {hex("09")}, .offsetSize = 2, .count = 3};
    QByteArray bytes = file.bytes();
    bytes.insert(9, 4, '\0');
    EXPECT_EQ(refusalOf([&] { BinaryReader::read(bytes); }),
              "damaged property list: trailer at byte 15: more objects than bytes");
}

TEST(BinaryReader, RefusesOffsetsOutsideOfTheObjects)
{
    QByteArray before = RawBinary{{hex("09")}}.bytes();
    before[12] = 7;
    EXPECT_EQ(refusalOf([&] { BinaryReader::read(before); }),
              "damaged property list: object 0: offset 7 out of range");
    QByteArray behind = RawBinary{{hex("09")}}.bytes();
    behind[12] = 9;
    EXPECT_EQ(refusalOf([&] { BinaryReader::read(behind); }),
              "damaged property list: object 0: offset 9 out of range");
    QByteArray huge = RawBinary{.objects = {hex("09")}, .offsetSize = 8}.bytes();
    huge.replace(9, 8, QByteArray(8, '\xFF'));
    EXPECT_EQ(refusalOf([&] { BinaryReader::read(huge); }),
              "damaged property list: object 0: offset 18446744073709551615 out of range");
}

TEST(BinaryReader, RefusesObjectsThatRunPastTheEnd)
{
    for (const char *object : {"11FF",
                               "13FF",
                               "1400",
                               "2200",
                               "23FF",
                               "33FF",
                               "42FF",
                               "530041",
                               "6200",
                               "8100",
                               "A2",
                               "D101",
                               "4F11",
                               "4F13FFFFFFFFFFFFFFFF",
                               "5F13FFFFFFFFFFFFFFFF",
                               "6F138000000000000000",
                               "AF138000000000000001",
                               "DF137FFFFFFFFFFFFFFF",
                               "DF138000000000000000",
                               "4F"}) {
        EXPECT_EQ(refusal({hex(object)}),
                  "damaged property list: object 0 at byte 8 runs past the end")
            << object;
    }
    EXPECT_EQ(refusal({hex("4FFF")}),
              "damaged property list: object 0 at byte 8 has no valid count");
    EXPECT_EQ(refusal({hex("42FF")}),
              "damaged property list: object 0 at byte 8 runs past the end");
    EXPECT_EQ(refusal({hex("4F20FF")}),
              "damaged property list: object 0 at byte 8 has no valid count");
}

TEST(BinaryReader, RefusesUnknownTypes)
{
    for (const char *object : {"01", "0C", "0F", "7161", "9000", "E000", "F000"}) {
        EXPECT_EQ(refusal({hex(object)}),
                  "damaged property list: object 0 at byte 8 is of an unknown type")
            << object;
    }
    EXPECT_EQ(refusal({hex("15") + QByteArray(32, '\0')}),
              "damaged property list: object 0 at byte 8 is an integer of an unknown size");
    EXPECT_EQ(refusal({hex("2000")}),
              "damaged property list: object 0 at byte 8 is a real of an unknown size");
    EXPECT_EQ(refusal({hex("88") + QByteArray(9, '\0')}),
              "damaged property list: object 0 at byte 8 is an identifier of an unknown size");
}

TEST(BinaryReader, RefusesIntegersOfMoreThan64Bits)
{
    const QString tooLarge = QStringLiteral(
        "damaged property list: object 0 at byte 8 is an integer of more than 64 bits");
    EXPECT_EQ(refusal({hex("14") + bigEndian(1, 8) + bigEndian(0, 8)}), tooLarge);
    EXPECT_EQ(refusal({hex("14") + QByteArray(8, '\xFF') + bigEndian(0, 8)}), tooLarge);
}

TEST(BinaryReader, RefusesReferencesToNothing)
{
    EXPECT_EQ(refusal({hex("A101")}), "damaged property list: object 0 at byte 8 refers to an "
                                      "object that is not there");
}

TEST(BinaryReader, RefusesKeysThatAreNoTexts)
{
    EXPECT_EQ(refusal({hex("D10101"), hex("1001")}),
              "damaged property list: object 0 at byte 8 has a key that is no text");
}

} // namespace velvane
