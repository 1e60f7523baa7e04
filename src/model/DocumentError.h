#pragma once

#include <QString>

#include <stdexcept>

namespace velvane {

/// Why a demo cannot be read, in one line that says what is wrong and where.
class DocumentError : public std::runtime_error {
public:
    explicit DocumentError(const QString &message) : runtime_error(message.toStdString()) {}

    QString message() const { return QString::fromStdString(what()); }
};

} // namespace velvane
