#pragma once

#include "cli/Console.h"

#include <string>

#include <CLI/CLI.hpp>

namespace velvane::cli {

/// Refuses what is not a finite number ("nan" and "inf" parse as numbers).
inline CLI::Validator isFinite()
{
    return CLI::Validator(
        [](const std::string &text) {
            double number = 0;
            const bool ok = CLI::detail::lexical_cast(text, number) && std::isfinite(number);
            return ok ? std::string()
                      : tr("“%1” is not a finite number")
                            .arg(QString::fromStdString(text))
                            .toStdString();
        },
        "");
}

} // namespace velvane::cli
