#pragma once

#include "model/propertylist/BinaryReader.h"
#include "support/Print.h"
#include "support/Refusal.h"

#include <QtEndian>

#include <optional>

// Binary property lists for tests, byte by byte.

namespace velvane {

inline QByteArray bigEndian(quint64 number, int size)
{
    const quint64 ordered = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&ordered), 8).right(size);
}

// A file of these objects, the first of them on top.
struct RawBinary {
    QList<QByteArray> objects = {};
    int offsetSize = 4;
    int referenceSize = 1;
    quint64 top = 0;
    // Instead of the true ones, if any.
    std::optional<quint64> count = std::nullopt;
    std::optional<quint64> table = std::nullopt;

    QByteArray bytes() const
    {
        QByteArray file("bplist00");
        QByteArray offsets;
        for (const QByteArray &object : objects) {
            offsets += bigEndian(quint64(file.size()), offsetSize);
            file += object;
        }
        const auto end = quint64(file.size());
        return file + offsets + QByteArray(6, '\0') + bigEndian(quint64(offsetSize), 1)
               + bigEndian(quint64(referenceSize), 1)
               + bigEndian(count.value_or(quint64(objects.size())), 8) + bigEndian(top, 8)
               + bigEndian(table.value_or(end), 8);
    }
};

inline QString refusal(const RawBinary &file)
{
    return refusalOf([&] { BinaryReader::read(file.bytes()); });
}

inline QString refusal(const QList<QByteArray> &objects)
{
    return refusal(RawBinary{objects});
}

inline QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace velvane
