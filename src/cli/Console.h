#pragma once

#include <QString>

#include <iostream>
#include <stdexcept>

namespace velvane::cli {

/// Where results, messages and progress go.
struct Console {
    std::ostream &out = std::cout;
    std::ostream &err = std::cerr;
    /// Is err a terminal, where a line may be drawn over?
    bool interactive = false;
};

/// Why a subcommand failed, in one line. It ends with exit status 1.
class CommandError : public std::runtime_error {
public:
    explicit CommandError(const QString &message) : runtime_error(message.toStdString()) {}
};

/// The text on one line, without characters that steer a terminal and not endlessly long: what a
/// file holds may be anything.
std::string printable(const QString &text, qsizetype maxLength = 300);

/// A text in the user's language.
QString tr(const char *english);
/// The same as the parser takes it.
std::string help(const char *english);

/// A file name as the shell gave it. Call after the application object exists.
QString fileName(const std::string &argument);

} // namespace velvane::cli
