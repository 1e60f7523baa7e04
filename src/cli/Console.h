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

/// Why a subcommand failed, in one line, and what may be said on a second one. It ends with exit
/// status 1. Names and texts stand in it as they are: printing makes them harmless.
class CommandError : public std::runtime_error {
public:
    explicit CommandError(const QString &message, const QString &detail = {})
        : runtime_error(message.toStdString())
        , m_detail(detail)
    {}

    QString message() const { return QString::fromStdString(what()); }
    /// Empty for none.
    const QString &detail() const { return m_detail; }

private:
    QString m_detail;
};

/// The text on one line, without characters that steer a terminal and not endlessly long: what a
/// file holds may be anything. A message with the longest path of a file in it stays whole.
std::string printable(const QString &text);

/// A text in the user's language.
QString tr(const char *english);
/// The same as the parser takes it.
std::string help(const char *english);

/// A file name as the shell gave it. Call after the application object exists. Throws CommandError
/// for a file that cannot be reached from the sandbox that we are in.
QString fileName(const std::string &argument);

} // namespace velvane::cli
