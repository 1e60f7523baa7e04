#pragma once

#include <QString>

#include <stdexcept>

namespace velvane {

/// Why a movie cannot be written, in one line.
class MovieError : public std::runtime_error {
public:
    enum class Cause {
        file,    ///< the file cannot be created; the reason is the system's
        size,    ///< no movie can have this size or rate
        writing, ///< encoding or writing failed
    };

    MovieError(Cause cause, const QString &reason)
        : runtime_error(reason.toStdString())
        , m_cause(cause)
    {}

    Cause cause() const { return m_cause; }
    QString reason() const { return QString::fromStdString(what()); }

private:
    Cause m_cause;
};

} // namespace velvane
