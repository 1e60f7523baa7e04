#pragma once

#include "model/propertylist/PropertyList.h"

#include <QHash>

#include <array>
#include <vector>

namespace velvane {

/// Numbers the values of a property list as the objects of a binary file, the root first. Equal
/// texts, data and numbers are one object; arrays and dictionaries are one each.
class BinaryNumbering {
public:
    using Number = quint32;

    /// A value to write, or a key.
    struct Object {
        const PropertyList *value = nullptr;
        const QString *key = nullptr;
        /// Of an array or dictionary: where its references start in references().
        std::size_t references = 0;
    };

    /// The root must outlive this.
    explicit BinaryNumbering(const PropertyList &root) { add(root); }

    /// By their numbers.
    const std::vector<Object> &objects() const { return m_objects; }
    /// Those of arrays: the items'. Those of dictionaries: all keys', then all values'.
    const std::vector<Number> &references() const { return m_references; }

private:
    Number add(const PropertyList &value);
    Number addArray(const PropertyList &value, const PropertyList::Array &items);
    Number addDictionary(const PropertyList &value, const PropertyList::Dictionary &entries);
    Number append(const Object &object);

    template <typename Key>
    Number once(QHash<Key, Number> &known, const Key &key, const Object &object)
    {
        // The tables hold one more than the number: 0 is for what they do not know.
        Number &next = known[key];
        if (next == 0)
            next = append(object) + 1;
        return next - 1;
    }

    std::vector<Object> m_objects;
    std::vector<Number> m_references;
    QHash<QString, Number> m_texts;
    QHash<QByteArray, Number> m_data;
    // By their bits; a table for each type.
    std::array<QHash<quint64, Number>, std::variant_size_v<PropertyList::Value>> m_small;
};

} // namespace velvane
