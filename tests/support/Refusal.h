#pragma once

#include "model/DocumentError.h"

#include <QString>

/// The message of the DocumentError that a call throws; "nothing was refused" if it throws none.
template <typename Call>
QString refusalOf(const Call &call)
{
    try {
        call();
    } catch (const velvane::DocumentError &error) {
        return error.message();
    }
    return QStringLiteral("nothing was refused");
}
