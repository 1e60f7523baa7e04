#pragma once

#include <QString>

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
inline void checkLine(const QString &message)
{
    check(!message.isEmpty(), "an empty message");
    for (const QChar c : message)
        check(c.category() != QChar::Other_Control, "a message with control characters");
    check(message.size() < 300, "a message longer than a line");
}
