#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <concepts>
#include <limits>
#include <variant>

namespace velvane {

/// One value of a property list, with all that it holds. Copies are cheap: texts, data, arrays and
/// dictionaries are shared.
class PropertyList {
public:
    struct Entry;

    using Array = QList<PropertyList>;
    /// In the order of the file; of entries with the same key the last one counts.
    using Dictionary = QList<Entry>;

    /// A moment, in seconds since the start of 2001, UTC.
    struct Date {
        double seconds = 0;
        bool operator==(const Date &) const = default;
    };

    /// A reference into an archive of objects.
    struct Uid {
        quint64 number = 0;
        bool operator==(const Uid &) const = default;
    };

    /// Integers are qint64; quint64 is only for those above what qint64 holds.
    using Value = std::variant<std::monostate, bool, qint64, quint64, double, Date, QByteArray,
                               QString, Uid, Array, Dictionary>;

    /// Deepest nesting of arrays and dictionaries that is read.
    static constexpr int maxDepth = 512;
    /// Most values (keys included) that are read; one that is referred to twice counts twice.
    static constexpr quint64 maxValues = quint64(1) << 22;
    /// Bytes of memory that all that is read may take; each reader counts before it takes.
    static constexpr qsizetype maxMemory = qsizetype(224) << 20;
    /// Bytes that a value takes in an array or dictionary, its key included.
    static constexpr qsizetype valueMemory = 56;
    /// Bytes that a text, data, array or dictionary takes besides its content: where it is kept,
    /// and what the allocator adds.
    static constexpr qsizetype sharedMemory = 128;

    /// Characters of a file's text that a message about it quotes at most.
    static constexpr qsizetype longestQuote = 40;

    /// Null.
    PropertyList() = default;
    PropertyList(bool truth) : m_value(truth) {}
    template <std::integral T>
    PropertyList(T number) : m_value(integer(number))
    {}
    PropertyList(double number) : m_value(number) {}
    PropertyList(Date date) : m_value(date) {}
    PropertyList(Uid uid) : m_value(uid) {}
    PropertyList(QByteArray data) : m_value(std::move(data)) {}
    PropertyList(QString text) : m_value(std::move(text)) {}
    PropertyList(Array array) : m_value(std::move(array)) {}
    PropertyList(Dictionary dictionary) : m_value(std::move(dictionary)) {}
    explicit PropertyList(Value value) : m_value(std::move(value)) {}
    /// A pointer would count as a truth.
    PropertyList(const void *) = delete;

    const Value &value() const { return m_value; }

    /// The value when it is of this type, else null.
    template <typename T>
    const T *as() const
    {
        return std::get_if<T>(&m_value);
    }

    /// Dictionaries are equal when their entries are, in the same order.
    bool operator==(const PropertyList &other) const;

private:
    static Value integer(std::integral auto number)
    {
        if (std::cmp_greater(number, std::numeric_limits<qint64>::max()))
            return quint64(number);
        return qint64(number);
    }

    Value m_value;
};

struct PropertyList::Entry {
    QString key;
    PropertyList value;

    bool operator==(const Entry &) const = default;
};

/// The value of a key; null when the dictionary has none.
const PropertyList *find(const PropertyList::Dictionary &dictionary, const QString &key);

} // namespace velvane

Q_DECLARE_TYPEINFO(velvane::PropertyList, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(velvane::PropertyList::Entry, Q_RELOCATABLE_TYPE);
