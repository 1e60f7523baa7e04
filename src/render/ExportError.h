#pragma once

#include <QCoreApplication>
#include <QString>

#include <stdexcept>

namespace velvane {

/// Why an export failed. Users see only the generic description; the reason is for the curious.
class ExportError : public std::runtime_error {
public:
    enum class Kind { writerFailed, noPool };

    explicit ExportError(Kind kind, const QString &reason = {})
        : runtime_error(reason.toStdString())
        , m_kind(kind)
    {}

    Kind kind() const { return m_kind; }
    QString reason() const { return QString::fromStdString(what()); }
    QString description() const
    {
        return QCoreApplication::translate(
                   "ExportError",
                   "The operation couldn’t be completed. (Velvane.ExportError error %1.)")
            .arg(static_cast<int>(m_kind));
    }

private:
    Kind m_kind;
};

} // namespace velvane
