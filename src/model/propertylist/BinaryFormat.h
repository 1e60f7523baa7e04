#pragma once

#include <QByteArrayView>

namespace velvane {

/// The binary form of property lists: the magic, the objects, a table of their offsets, and a
/// trailer that describes the table. Numbers are big-endian.
namespace BinaryFormat {

/// Without the last digit, the version's.
inline constexpr QByteArrayView magic("bplist0");
inline constexpr qsizetype magicSize = 8;

/// Six unused bytes, the size of an offset, the size of a reference, and three 64-bit numbers:
/// the count of objects, the number of the top one, and where the table of offsets starts.
inline constexpr qsizetype trailerSize = 32;

/// The upper half of an object's first byte. The lower half is its size, or part of it.
enum Type : quint8 {
    Constant = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiText = 0x5,
    Utf16Text = 0x6,
    Uid = 0x8,
    Array = 0xA,
    OrderedSet = 0xB,
    Set = 0xC,
    Dictionary = 0xD,
};

/// The lower half of a constant's first byte.
inline constexpr quint8 null = 0x0;
inline constexpr quint8 no = 0x8;
inline constexpr quint8 yes = 0x9;

/// The lower half of the first byte when an integer with the size follows.
inline constexpr quint8 sizeFollows = 0xF;

} // namespace BinaryFormat

} // namespace velvane
