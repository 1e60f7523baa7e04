#pragma once

#include "Finding.h"
#include "model/DocumentError.h"
#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/BinaryWriter.h"

/// Messages are one line, whatever the file holds.
inline void checkMessage(const velvane::DocumentError &error)
{
    checkLine(error.message());
}

/// What was read is written and read back the same. Compares bytes: a value that is not a number
/// is not even equal to itself.
inline void checkRoundTrip(const velvane::PropertyList &value)
{
    const QByteArray written = velvane::BinaryWriter::write(value);
    const QByteArray again = velvane::BinaryWriter::write(velvane::BinaryReader::read(written));
    check(written == again, "a value changes when it is written and read");
}
