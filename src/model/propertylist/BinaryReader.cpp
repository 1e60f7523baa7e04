#include "model/propertylist/BinaryReader.h"

#include "model/propertylist/BinaryFormat.h"
#include "model/propertylist/BinaryObjects.h"

#include <algorithm>
#include <vector>

namespace velvane::BinaryReader {

namespace {

namespace Format = BinaryFormat;

using Object = BinaryObjects::Object;

// A value, and its extent with every shared part counted each time it is reached.
struct Resolved {
    PropertyList value;
    quint64 values = 1;
    int height = 0;
};

class Reader {
public:
    explicit Reader(const QByteArray &bytes)
        : m_objects(bytes)
        , m_places(std::size_t(m_objects.count()), unread)
    {}

    PropertyList read() { return resolve(m_objects.top(), 0).value; }

private:
    Resolved resolve(quint64 number, int depth);
    Resolved shared(Object &object, int depth);
    Resolved array(Object &object, int depth);
    Resolved dictionary(Object &object, int depth);
    PropertyList member(const Object &object, qsizetype index, int depth, Resolved &container);
    QString key(const Object &object, qsizetype index, int depth, Resolved &container);
    qsizetype takeText(Object &object, qsizetype itemSize);
    qsizetype takeItems(Object &object, qsizetype references);
    void countShared(const Object &object, qsizetype size);
    void countMemory(const Object &object, qsizetype size);

    static constexpr quint32 unread = 0;
    static constexpr quint32 beingRead = ~quint32(0);

    const BinaryObjects m_objects;
    // Per object: unread, being read, or 1 + its place in m_shared. Only what is worth sharing is
    // kept, so a table of a million numbers costs its four bytes each.
    std::vector<quint32> m_places;
    std::vector<Resolved> m_shared;
    qsizetype m_sharedBytes = 0;
    qsizetype m_memory = 0;
    quint64 m_items = 0;
};

Resolved Reader::resolve(quint64 number, int depth)
{
    const quint32 place = m_places[number];
    if (place != unread && place != beingRead)
        return m_shared[place - 1];
    Object object = m_objects.object(number);
    if (place == beingRead)
        BinaryObjects::fail(object, "contains itself");
    switch (object.type) {
    case Format::Constant:
        return {m_objects.constant(object)};
    case Format::Integer:
        return {m_objects.integer(object)};
    case Format::Real:
        return {m_objects.real(object)};
    case Format::Date:
        return {m_objects.date(object)};
    case Format::Uid:
        return {m_objects.uid(object)};
    default:
        break;
    }
    m_places[number] = beingRead;
    m_shared.push_back(shared(object, depth));
    m_places[number] = quint32(m_shared.size());
    return m_shared.back();
}

Resolved Reader::shared(Object &object, int depth)
{
    switch (object.type) {
    case Format::Data: {
        const qsizetype count = takeText(object, 1);
        return {m_objects.data(object, count)};
    }
    case Format::AsciiText: {
        const qsizetype count = takeText(object, 1);
        return {m_objects.asciiText(object, count)};
    }
    case Format::Utf16Text: {
        const qsizetype count = takeText(object, 2);
        return {m_objects.utf16Text(object, count)};
    }
    case Format::Array:
    case Format::OrderedSet:
    case Format::Set:
        return array(object, depth);
    case Format::Dictionary:
        return dictionary(object, depth);
    default:
        BinaryObjects::fail(object, "is of an unknown type");
    }
}

qsizetype Reader::takeText(Object &object, qsizetype itemSize)
{
    const qsizetype count = m_objects.takeCount(object, itemSize);
    countShared(object, count * itemSize);
    // Texts are kept as UTF-16.
    countMemory(object, count * (object.type == Format::Data ? 1 : 2));
    return count;
}

// The count of items, each of so many references.
qsizetype Reader::takeItems(Object &object, qsizetype references)
{
    const qsizetype count = m_objects.takeCount(object, references * m_objects.referenceSize());
    countShared(object, count * references * m_objects.referenceSize());
    m_items += quint64(count * references);
    if (m_items > PropertyList::maxValues)
        BinaryObjects::fail(object, "holds too many values");
    countMemory(object, count * PropertyList::valueMemory);
    return count;
}

// Bounds the memory before it is taken: objects that lie upon each other could make many texts of
// one. Together, each with its first byte, they cannot be longer than the file.
void Reader::countShared(const Object &object, qsizetype size)
{
    m_sharedBytes += 1 + size;
    if (m_sharedBytes > m_objects.size())
        BinaryObjects::fail(object, "overlaps others");
}

// Of an object's content.
void Reader::countMemory(const Object &object, qsizetype size)
{
    m_memory += PropertyList::sharedMemory + size;
    if (m_memory > PropertyList::maxMemory)
        BinaryObjects::fail(object, "takes too much memory");
}

Resolved Reader::array(Object &object, int depth)
{
    const qsizetype count = takeItems(object, 1);
    PropertyList::Array items;
    items.reserve(count);
    Resolved result;
    for (qsizetype i = 0; i < count; ++i)
        items << member(object, i, depth, result);
    result.value = std::move(items);
    return result;
}

Resolved Reader::dictionary(Object &object, int depth)
{
    const qsizetype count = takeItems(object, 2);
    PropertyList::Dictionary entries;
    entries.reserve(count);
    Resolved result;
    // First come the references of all keys, then those of all values.
    for (qsizetype i = 0; i < count; ++i) {
        QString name = key(object, i, depth, result);
        entries.append({std::move(name), member(object, count + i, depth, result)});
    }
    result.value = std::move(entries);
    return result;
}

// Resolves a reference of an array or dictionary and adds to its extent.
PropertyList Reader::member(const Object &object, qsizetype index, int depth, Resolved &container)
{
    const quint64 reference = m_objects.reference(object, index);
    if (depth >= PropertyList::maxDepth)
        BinaryObjects::fail(object, "is nested too deeply");
    Resolved found = resolve(reference, depth + 1);
    container.values += found.values;
    container.height = std::max(container.height, found.height + 1);
    if (container.height > PropertyList::maxDepth)
        BinaryObjects::fail(object, "is nested too deeply");
    if (container.values > PropertyList::maxValues)
        BinaryObjects::fail(object, "holds too many values");
    return std::move(found.value);
}

QString Reader::key(const Object &object, qsizetype index, int depth, Resolved &container)
{
    const PropertyList found = member(object, index, depth, container);
    if (const auto *text = found.as<QString>())
        return *text;
    BinaryObjects::fail(object, "has a key that is no text");
}

} // namespace

bool recognises(QByteArrayView bytes)
{
    return bytes.startsWith(Format::magic);
}

PropertyList read(const QByteArray &bytes)
{
    if (!recognises(bytes))
        BinaryObjects::fail(QStringLiteral("no binary property list"));
    return Reader(bytes).read();
}

} // namespace velvane::BinaryReader
