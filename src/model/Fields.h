#pragma once

#include "base/Seconds.h"
#include "model/StepKind.h"
#include "model/propertylist/PropertyList.h"

#include <QPointF>
#include <QUuid>

#include <optional>
#include <utility>

namespace velvane {

/// One dictionary of a demo file: its values by key, checked. What the file leaves out is nothing;
/// what is of the wrong type or range throws DocumentError, naming the step and the key.
///
/// An integer serves as a real, and a real without a fraction as an integer; booleans are neither.
class Fields {
public:
    /// `step` counts from 1; 0 is the root. The record must outlive the fields.
    Fields(const PropertyList &record, qsizetype step);

    std::optional<QString> text(const QString &key) const;
    std::optional<bool> truth(const QString &key) const;
    std::optional<QByteArray> data(const QString &key) const;
    /// Finite, as all reals here.
    std::optional<double> real(const QString &key) const;
    std::optional<Seconds> seconds(const QString &key) const;
    std::optional<QPointF> point(const QString &key) const;
    /// Written 8-4-4-4-12, in digits of any case.
    std::optional<QUuid> id(const QString &key) const;

    template <std::integral T>
    std::optional<T> integer(const QString &key) const
    {
        const auto number = whole(key);
        if (!number)
            return {};
        const auto narrowed = [&](auto wide) {
            if (!std::in_range<T>(wide))
                fail(key, QT_TRANSLATE_NOOP("Fields", "“%1” is out of range"));
            return T(wide);
        };
        return std::visit(narrowed, *number);
    }

    /// This one cannot be left out.
    StepKind kind(const QString &key) const;
    /// Neither can this.
    const PropertyList::Array &array(const QString &key) const;

    /// The value of a key that cannot be left out.
    template <typename T>
    T required(const QString &key, const std::optional<T> &value) const
    {
        if (!value)
            failMissing(key);
        return *value;
    }

private:
    using Whole = std::variant<qint64, quint64>;

    template <typename T>
    std::optional<T> held(const QString &key, const char *what) const;
    std::optional<Whole> whole(const QString &key) const;
    double number(const QString &key, const PropertyList &value, const char *what) const;
    [[noreturn]] void fail(const QString &what) const;
    /// `what` is English, with %1 for the key.
    [[noreturn]] void fail(const QString &key, const char *what) const;
    [[noreturn]] void failMissing(const QString &key) const;

    const PropertyList::Dictionary *m_entries;
    qsizetype m_step;
};

} // namespace velvane
