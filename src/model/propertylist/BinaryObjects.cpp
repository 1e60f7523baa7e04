#include "model/propertylist/BinaryObjects.h"

#include "model/DocumentError.h"
#include "model/propertylist/BinaryFormat.h"

#include <QCoreApplication>
#include <QtEndian>

#include <bit>

namespace velvane {

namespace Format = BinaryFormat;

void BinaryObjects::fail(const QString &what)
{
    throw DocumentError(
        QCoreApplication::translate("BinaryObjects", "damaged property list: %1").arg(what));
}

void BinaryObjects::fail(const Object &object, const char *what)
{
    fail(QStringLiteral("object %1 at byte %2 %3")
             .arg(object.number)
             .arg(object.start)
             .arg(QLatin1String(what)));
}

BinaryObjects::BinaryObjects(const QByteArray &bytes) : m_bytes(bytes)
{
    if (bytes.size() < Format::magicSize + Format::trailerSize)
        fail(QStringLiteral("too short, %1 bytes").arg(bytes.size()));
    const qsizetype trailer = bytes.size() - Format::trailerSize;
    m_offsetSize = quint8(bytes[trailer + 6]);
    m_referenceSize = quint8(bytes[trailer + 7]);
    m_count = bigEndian(trailer + 8, 8);
    m_top = bigEndian(trailer + 16, 8);
    const quint64 table = bigEndian(trailer + 24, 8);

    const auto require = [&](bool condition, const char *what) {
        if (!condition)
            fail(QStringLiteral("trailer at byte %1: %2").arg(trailer).arg(QLatin1String(what)));
    };
    require(m_offsetSize >= 1 && m_offsetSize <= 8, "offset size out of range");
    require(m_referenceSize >= 1 && m_referenceSize <= 8, "reference size out of range");
    require(table > quint64(Format::magicSize) && table < quint64(trailer),
            "offset table out of range");
    require(m_count == (quint64(trailer) - table) / quint64(m_offsetSize)
                && (quint64(trailer) - table) % quint64(m_offsetSize) == 0,
            "object count and offset table do not fit together");
    require(m_count <= table - quint64(Format::magicSize), "more objects than bytes");
    require(m_count <= PropertyList::maxValues, "too many objects");
    require(m_top < m_count, "top object out of range");
    m_end = qsizetype(table);
}

quint64 BinaryObjects::bigEndian(qsizetype at, int size) const
{
    const auto *bytes = reinterpret_cast<const uchar *>(m_bytes.constData()) + at;
    quint64 number = 0;
    for (int i = 0; i < size; ++i)
        number = number << 8 | bytes[i];
    return number;
}

BinaryObjects::Object BinaryObjects::object(quint64 number) const
{
    const qsizetype entry = m_end + qsizetype(number) * m_offsetSize;
    const quint64 offset = bigEndian(entry, m_offsetSize);
    if (offset < quint64(Format::magicSize) || offset >= quint64(m_end))
        fail(QStringLiteral("object %1: offset %2 out of range").arg(number).arg(offset));
    const auto start = qsizetype(offset);
    const auto marker = quint8(m_bytes[start]);
    return {number, start, start + 1, quint8(marker >> 4), quint8(marker & 0xF)};
}

void BinaryObjects::require(const Object &object, quint64 size) const
{
    if (size > quint64(m_end - object.content))
        fail(object, "runs past the end");
}

qsizetype BinaryObjects::takeCount(Object &object, qsizetype itemSize) const
{
    quint64 count = object.info;
    if (object.info == Format::sizeFollows) {
        require(object, 1);
        const auto marker = quint8(m_bytes[object.content++]);
        const int size = 1 << (marker & 0xF);
        if (marker >> 4 != Format::Integer || size > 8)
            fail(object, "has no valid count");
        require(object, quint64(size));
        count = bigEndian(object.content, size);
        object.content += size;
    }
    if (count > quint64(m_end - object.content) / quint64(itemSize))
        fail(object, "runs past the end");
    return qsizetype(count);
}

PropertyList BinaryObjects::constant(const Object &object) const
{
    switch (object.info) {
    case Format::null:
        return {};
    case Format::no:
        return false;
    case Format::yes:
        return true;
    default:
        fail(object, "is of an unknown type");
    }
}

PropertyList BinaryObjects::integer(const Object &object) const
{
    const int size = 1 << object.info;
    if (size > 16)
        fail(object, "is an integer of an unknown size");
    require(object, quint64(size));
    if (size < 8)
        return bigEndian(object.content, size);
    if (size == 8)
        return qint64(bigEndian(object.content, 8));
    const auto high = qint64(bigEndian(object.content, 8));
    const quint64 low = bigEndian(object.content + 8, 8);
    if (high == 0)
        return low;
    if (high == -1 && qint64(low) < 0)
        return qint64(low);
    fail(object, "is an integer of more than 64 bits");
}

PropertyList BinaryObjects::real(const Object &object) const
{
    const int size = 1 << object.info;
    if (size != 4 && size != 8)
        fail(object, "is a real of an unknown size");
    require(object, quint64(size));
    if (size == 8)
        return std::bit_cast<double>(bigEndian(object.content, 8));
    return double(std::bit_cast<float>(quint32(bigEndian(object.content, 4))));
}

PropertyList BinaryObjects::uid(const Object &object) const
{
    const int size = object.info + 1;
    if (size > 8)
        fail(object, "is an identifier of an unknown size");
    require(object, quint64(size));
    return PropertyList::Uid{bigEndian(object.content, size)};
}

PropertyList BinaryObjects::date(const Object &object) const
{
    require(object, 8);
    return PropertyList::Date{std::bit_cast<double>(bigEndian(object.content, 8))};
}

PropertyList BinaryObjects::data(const Object &object, qsizetype count) const
{
    return m_bytes.sliced(object.content, count);
}

PropertyList BinaryObjects::asciiText(const Object &object, qsizetype count) const
{
    return QString::fromLatin1(m_bytes.constData() + object.content, count);
}

PropertyList BinaryObjects::utf16Text(const Object &object, qsizetype count) const
{
    QString text(count, Qt::Uninitialized);
    qFromBigEndian<quint16>(m_bytes.constData() + object.content, count, text.data());
    return text;
}

quint64 BinaryObjects::reference(const Object &object, qsizetype index) const
{
    const quint64 number = bigEndian(object.content + index * m_referenceSize, m_referenceSize);
    if (number >= m_count)
        fail(object, "refers to an object that is not there");
    return number;
}

} // namespace velvane
