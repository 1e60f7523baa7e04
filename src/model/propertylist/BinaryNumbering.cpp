#include "model/propertylist/BinaryNumbering.h"

#include <bit>

namespace velvane {

namespace {

quint64 bits(std::monostate)
{
    return 0;
}

quint64 bits(std::integral auto number)
{
    return quint64(number);
}

quint64 bits(double number)
{
    return std::bit_cast<quint64>(number);
}

quint64 bits(PropertyList::Date date)
{
    return bits(date.seconds);
}

quint64 bits(PropertyList::Uid uid)
{
    return uid.number;
}

} // namespace

BinaryNumbering::Number BinaryNumbering::add(const PropertyList &value)
{
    const auto number = [&](const auto &held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, QString>)
            return once(m_texts, held, {.value = &value});
        else if constexpr (std::is_same_v<Held, QByteArray>)
            return once(m_data, held, {.value = &value});
        else if constexpr (std::is_same_v<Held, PropertyList::Array>)
            return addArray(value, held);
        else if constexpr (std::is_same_v<Held, PropertyList::Dictionary>)
            return addDictionary(value, held);
        else
            return once(m_small[value.value().index()], bits(held), {.value = &value});
    };
    return std::visit(number, value.value());
}

BinaryNumbering::Number BinaryNumbering::addArray(const PropertyList &value,
                                                  const PropertyList::Array &items)
{
    std::size_t next = m_references.size();
    const Number number = append({.value = &value, .references = next});
    m_references.resize(next + std::size_t(items.size()));
    for (const PropertyList &item : items) {
        const Number part = add(item);
        m_references[next++] = part;
    }
    return number;
}

BinaryNumbering::Number BinaryNumbering::addDictionary(const PropertyList &value,
                                                       const PropertyList::Dictionary &entries)
{
    std::size_t next = m_references.size();
    const Number number = append({.value = &value, .references = next});
    m_references.resize(next + 2 * std::size_t(entries.size()));
    for (const PropertyList::Entry &entry : entries)
        m_references[next++] = once(m_texts, entry.key, {.key = &entry.key});
    for (const PropertyList::Entry &entry : entries) {
        const Number part = add(entry.value);
        m_references[next++] = part;
    }
    return number;
}

BinaryNumbering::Number BinaryNumbering::append(const Object &object)
{
    m_objects.push_back(object);
    return Number(m_objects.size() - 1);
}

} // namespace velvane
