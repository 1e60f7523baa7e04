#include "model/propertylist/BinaryReader.h"

#include "support/RawBinary.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Array = PropertyList::Array;

// An array of references of two bytes.
QByteArray arrayOf(const QList<int> &references)
{
    QByteArray object = hex("AF11") + bigEndian(quint64(references.size()), 2);
    for (const int reference : references)
        object += bigEndian(quint64(reference), 2);
    return object;
}

} // namespace

TEST(BinaryLimits, RefusesAnObjectThatContainsItself)
{
    EXPECT_EQ(refusal({hex("A100")}), "damaged property list: object 0 at byte 8 contains itself");
    EXPECT_EQ(refusal({hex("A101"), hex("A102"), hex("D10301"), hex("5161")}),
              "damaged property list: object 1 at byte 10 contains itself");
}

TEST(BinaryLimits, RefusesNestingOf100000)
{
    constexpr int depth = 100'000;
    RawBinary file{.referenceSize = 4};
    for (int i = 1; i < depth; ++i)
        file.objects << hex("A1") + bigEndian(quint64(i), 4);
    file.objects << hex("A0");
    EXPECT_EQ(refusal(file), "damaged property list: object 512 at byte 2568 is nested too deeply");
}

TEST(BinaryLimits, RefusesNestingOf100000InKeys)
{
    RawBinary file{.referenceSize = 4};
    for (int i = 1; i < 100'000; ++i)
        file.objects << hex("D1") + bigEndian(quint64(i), 4) + bigEndian(quint64(i), 4);
    file.objects << hex("5161");
    EXPECT_EQ(refusal(file), "damaged property list: object 512 at byte 4616 is nested too deeply");
}

TEST(BinaryLimits, RefusesDeepNestingOfPartsReadBefore)
{
    // The root refers to the deepest part first, so no part is deep when it is read.
    constexpr int depth = 600;
    QList<int> parts;
    RawBinary file{.objects = {{}}, .referenceSize = 2};
    file.objects << hex("A0");
    for (int i = 2; i <= depth; ++i)
        file.objects << hex("A1") + bigEndian(quint64(i - 1), 2);
    for (int i = 1; i <= depth; ++i)
        parts << i;
    file.objects[0] = arrayOf(parts);
    EXPECT_EQ(refusal(file), "damaged property list: object 0 at byte 8 is nested too deeply");
}

TEST(BinaryLimits, ReadsNestingAsDeepAsTheLimit)
{
    RawBinary file{.referenceSize = 2};
    for (int i = 1; i <= PropertyList::maxDepth; ++i)
        file.objects << hex("A1") + bigEndian(quint64(i), 2);
    file.objects << hex("09");
    PropertyList value = BinaryReader::read(file.bytes());
    for (int i = 0; i < PropertyList::maxDepth; ++i)
        value = PropertyList(value.as<Array>()->constFirst());
    EXPECT_EQ(value, PropertyList(true));
}

TEST(BinaryLimits, RefusesSharedReferencesThatExpandToBillions)
{
    // Each of 40 arrays holds the next one twice: 2^40 values in 168 bytes.
    RawBinary file{.offsetSize = 1};
    for (int i = 1; i <= 40; ++i)
        file.objects << hex("A2") + bigEndian(quint64(i), 1) + bigEndian(quint64(i), 1);
    file.objects << hex("09");
    EXPECT_EQ(refusal(file), "damaged property list: object 18 at byte 62 holds too many values");
}

TEST(BinaryLimits, RefusesAnArrayOfMoreItemsThanTheLimit)
{
    const quint64 count = PropertyList::maxValues + 1;
    const RawBinary file{
        {hex("AF12") + bigEndian(count, 4) + QByteArray(qsizetype(count), '\x01'), hex("00")}};
    EXPECT_EQ(refusal(file), "damaged property list: object 0 at byte 8 holds too many values");
}

TEST(BinaryLimits, RefusesWhatTakesTooMuchMemory)
{
    // Of a few bytes each in the file, and many times as many in memory.
    constexpr int count = 2'000'000;
    QByteArray references;
    for (int i = 1; i <= count; ++i)
        references += bigEndian(quint64(i), 3);
    RawBinary file{.objects = {hex("AF12") + bigEndian(count, 4) + references}, .referenceSize = 3};
    file.objects << QList<QByteArray>(count, hex("5161"));
    EXPECT_TRUE(refusal(file).endsWith(QStringLiteral(" takes too much memory")));
}

TEST(BinaryLimits, RefusesManyTextsMadeOfTheSameBytes)
{
    // A thousand objects at the same place would take a thousand times the file's size.
    constexpr int count = 1000;
    QList<int> parts;
    for (int i = 1; i <= count; ++i)
        parts << i;
    RawBinary file{.objects = {arrayOf(parts)}, .referenceSize = 2};
    file.objects << hex("5F112710") + QByteArray(10000, 'x');
    for (int i = 2; i <= count; ++i)
        file.objects << QByteArray();
    QByteArray bytes = file.bytes();
    const qsizetype table = bytes.size() - 32 - 4 * (count + 1);
    for (int i = 2; i <= count; ++i)
        bytes.replace(table + 4 * i, 4, bytes.sliced(table + 4, 4));
    EXPECT_EQ(refusalOf([&] { BinaryReader::read(bytes); }),
              "damaged property list: object 2 at byte 2012 overlaps others");
}

} // namespace velvane
