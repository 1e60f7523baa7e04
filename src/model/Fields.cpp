#include "model/Fields.h"

#include "base/PlainLine.h"
#include "model/DocumentError.h"

#include <QCoreApplication>

#include <cmath>

namespace velvane {

namespace {

QString tr(const char *english)
{
    return QCoreApplication::translate("Fields", english);
}

// Strictly 8-4-4-4-12 hexadecimal digits; QUuid's own reading is more generous.
std::optional<QUuid> uuid(const QString &text)
{
    constexpr qsizetype length = 36;
    if (text.size() != length)
        return {};
    for (qsizetype i = 0; i < length; ++i) {
        const char c = text[i].toLatin1();
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? c != '-' : !std::isxdigit(static_cast<unsigned char>(c)))
            return {};
    }
    return QUuid::fromString(text);
}

} // namespace

Fields::Fields(const PropertyList &record, qsizetype step)
    : m_entries(record.as<PropertyList::Dictionary>())
    , m_step(step)
{
    if (!m_entries)
        fail(tr("not a dictionary"));
}

void Fields::fail(const QString &what) const
{
    throw DocumentError(m_step == 0 ? what : tr("step %1: %2").arg(m_step).arg(what));
}

void Fields::fail(const QString &key, const char *what) const
{
    fail(tr(what).arg(key));
}

void Fields::failMissing(const QString &key) const
{
    fail(tr("missing “%1”").arg(key));
}

template <typename T>
std::optional<T> Fields::held(const QString &key, const char *what) const
{
    const PropertyList *value = find(*m_entries, key);
    if (!value)
        return {};
    if (const T *found = value->as<T>())
        return *found;
    fail(key, what);
}

std::optional<QString> Fields::text(const QString &key) const
{
    return held<QString>(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not a string"));
}

std::optional<bool> Fields::truth(const QString &key) const
{
    return held<bool>(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not a boolean"));
}

std::optional<QByteArray> Fields::data(const QString &key) const
{
    return held<QByteArray>(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not data"));
}

const PropertyList::Array &Fields::array(const QString &key) const
{
    const PropertyList *value = find(*m_entries, key);
    if (!value)
        failMissing(key);
    if (const auto *items = value->as<PropertyList::Array>())
        return *items;
    fail(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not an array"));
}

double Fields::number(const QString &key, const PropertyList &value, const char *what) const
{
    double result = 0;
    if (const auto *real = value.as<double>())
        result = *real;
    else if (const auto *integer = value.as<qint64>())
        result = double(*integer);
    else if (const auto *large = value.as<quint64>())
        result = double(*large);
    else
        fail(key, what);
    if (!std::isfinite(result))
        fail(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not finite"));
    return result;
}

std::optional<double> Fields::real(const QString &key) const
{
    const PropertyList *value = find(*m_entries, key);
    return value ? std::optional(
               number(key, *value, QT_TRANSLATE_NOOP("Fields", "“%1” is not a number")))
                 : std::nullopt;
}

std::optional<Seconds> Fields::seconds(const QString &key) const
{
    const std::optional<double> value = real(key);
    return value ? std::optional(Seconds(*value)) : std::nullopt;
}

std::optional<QPointF> Fields::point(const QString &key) const
{
    constexpr const char *wrongType =
        QT_TRANSLATE_NOOP("Fields", "“%1” is not an array of two numbers");
    const auto items = held<PropertyList::Array>(key, wrongType);
    if (!items)
        return {};
    if (items->size() != 2)
        fail(key, wrongType);
    return QPointF(number(key, items->at(0), wrongType), number(key, items->at(1), wrongType));
}

std::optional<Fields::Whole> Fields::whole(const QString &key) const
{
    const PropertyList *value = find(*m_entries, key);
    if (!value)
        return {};
    if (const auto *number = value->as<qint64>())
        return *number;
    if (const auto *large = value->as<quint64>())
        return *large;
    const auto *real = value->as<double>();
    if (!real || std::trunc(*real) != *real)
        fail(key, QT_TRANSLATE_NOOP("Fields", "“%1” is not an integer"));
    // Both ends are doubles themselves, so nothing between them is rounded.
    if (*real >= -0x1p63 && *real < 0x1p63)
        return qint64(*real);
    if (*real >= 0 && *real < 0x1p64)
        return quint64(*real);
    fail(key, QT_TRANSLATE_NOOP("Fields", "“%1” is out of range"));
}

std::optional<QUuid> Fields::id(const QString &key) const
{
    const std::optional<QString> value = text(key);
    if (!value)
        return {};
    const std::optional<QUuid> found = uuid(*value);
    if (!found)
        fail(
            tr("“%1” is not a UUID: “%2”").arg(key, plainLine(*value, PropertyList::longestQuote)));
    return found;
}

StepKind Fields::kind(const QString &key) const
{
    const QString name = required(key, text(key));
    const std::optional<StepKind> found = stepKind(name);
    if (!found)
        fail(tr("unknown kind “%1”").arg(plainLine(name, PropertyList::longestQuote)));
    return *found;
}

} // namespace velvane
