#pragma once

#include "model/DocumentError.h"
#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/BinaryWriter.h"

#include <cstdio>
#include <cstdlib>

/// Ends a fuzzer with a finding when something that must hold does not.
inline void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "finding: %s\n", what);
    std::abort();
}

/// Messages are one line, whatever the file holds.
inline void checkMessage(const velvane::DocumentError &error)
{
    check(!error.message().isEmpty(), "an empty message");
    for (const QChar c : error.message())
        check(c.category() != QChar::Other_Control, "a message with control characters");
    check(error.message().size() < 300, "a message longer than a line");
}

/// What was read is written and read back the same. Compares bytes: a value that is not a number
/// is not even equal to itself.
inline void checkRoundTrip(const velvane::PropertyList &value)
{
    const QByteArray written = velvane::BinaryWriter::write(value);
    const QByteArray again = velvane::BinaryWriter::write(velvane::BinaryReader::read(written));
    check(written == again, "a value changes when it is written and read");
}
