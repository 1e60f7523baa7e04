#include "model/propertylist/BinaryWriter.h"

#include "model/propertylist/BinaryFormat.h"
#include "model/propertylist/BinaryNumbering.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <vector>

namespace velvane::BinaryWriter {

namespace {

namespace Format = BinaryFormat;

using Number = BinaryNumbering::Number;
using Object = BinaryNumbering::Object;

// Bytes that hold every number up to this one.
int sizeFor(quint64 largest)
{
    if (largest <= 0xFF)
        return 1;
    if (largest <= 0xFFFF)
        return 2;
    return largest <= 0xFFFF'FFFF ? 4 : 8;
}

class Output {
public:
    explicit Output(const BinaryNumbering &numbering);

    QByteArray bytes() { return std::move(m_bytes); }

private:
    void append(const Object &object);
    void append(std::monostate) { appendMarker(Format::Constant, Format::null); }
    void append(bool truth) { appendMarker(Format::Constant, truth ? Format::yes : Format::no); }
    void append(qint64 number);
    void append(quint64 number);
    void append(double number);
    void append(PropertyList::Date date);
    void append(PropertyList::Uid uid);
    void append(const QByteArray &data);
    void append(const QString &text);

    void appendMarker(Format::Type type, quint8 info) { m_bytes += char(type << 4 | info); }
    void appendMarkerAndSize(Format::Type type, qsizetype size);
    void appendParts(Format::Type type, qsizetype size, const Number *first, qsizetype count);
    void appendBigEndian(quint64 number, int size);
    void appendTrailer(quint64 objects, quint64 table, int offsetSize);

    QByteArray m_bytes;
    const std::vector<Number> &m_references;
    int m_referenceSize;
};

Output::Output(const BinaryNumbering &numbering)
    : m_references(numbering.references())
    , m_referenceSize(sizeFor(numbering.objects().size() - 1))
{
    const std::vector<Object> &objects = numbering.objects();
    m_bytes.reserve(qsizetype(m_references.size()) * m_referenceSize
                    + qsizetype(objects.size()) * 16);
    m_bytes.append(Format::magic).append('0');
    std::vector<quint64> offsets;
    offsets.reserve(objects.size());
    for (const Object &object : objects) {
        offsets.push_back(quint64(m_bytes.size()));
        append(object);
    }
    const auto table = quint64(m_bytes.size());
    const int offsetSize = sizeFor(table);
    for (const quint64 offset : offsets)
        appendBigEndian(offset, offsetSize);
    appendTrailer(objects.size(), table, offsetSize);
}

void Output::append(const Object &object)
{
    if (object.key) {
        append(*object.key);
        return;
    }
    const Number *parts = m_references.data() + object.references;
    const auto write = [&](const auto &held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, PropertyList::Array>)
            appendParts(Format::Array, held.size(), parts, held.size());
        else if constexpr (std::is_same_v<Held, PropertyList::Dictionary>)
            appendParts(Format::Dictionary, held.size(), parts, 2 * held.size());
        else
            append(held);
    };
    std::visit(write, object.value->value());
}

void Output::append(qint64 number)
{
    // Integers of one, two and four bytes have no sign.
    const int size = number < 0 ? 8 : sizeFor(quint64(number));
    appendMarker(Format::Integer, quint8(std::countr_zero(unsigned(size))));
    appendBigEndian(quint64(number), size);
}

void Output::append(quint64 number)
{
    // Those of eight bytes have one, so this takes sixteen.
    appendMarker(Format::Integer, 4);
    appendBigEndian(0, 8);
    appendBigEndian(number, 8);
}

void Output::append(double number)
{
    appendMarker(Format::Real, 3);
    appendBigEndian(std::bit_cast<quint64>(number), 8);
}

void Output::append(PropertyList::Date date)
{
    appendMarker(Format::Date, 3);
    appendBigEndian(std::bit_cast<quint64>(date.seconds), 8);
}

void Output::append(PropertyList::Uid uid)
{
    const int size = sizeFor(uid.number);
    appendMarker(Format::Uid, quint8(size - 1));
    appendBigEndian(uid.number, size);
}

void Output::append(const QByteArray &data)
{
    appendMarkerAndSize(Format::Data, data.size());
    m_bytes += data;
}

void Output::append(const QString &text)
{
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (ascii) {
        appendMarkerAndSize(Format::AsciiText, text.size());
        m_bytes += text.toLatin1();
        return;
    }
    appendMarkerAndSize(Format::Utf16Text, text.size());
    const qsizetype start = m_bytes.size();
    m_bytes.resize(start + 2 * text.size());
    qToBigEndian<quint16>(text.constData(), text.size(), m_bytes.data() + start);
}

void Output::appendMarkerAndSize(Format::Type type, qsizetype size)
{
    if (size < Format::sizeFollows) {
        appendMarker(type, quint8(size));
        return;
    }
    appendMarker(type, Format::sizeFollows);
    append(qint64(size));
}

void Output::appendParts(Format::Type type, qsizetype size, const Number *first, qsizetype count)
{
    appendMarkerAndSize(type, size);
    for (const Number *part = first; part != first + count; ++part)
        appendBigEndian(*part, m_referenceSize);
}

void Output::appendBigEndian(quint64 number, int size)
{
    const quint64 ordered = qToBigEndian(number);
    m_bytes.append(reinterpret_cast<const char *>(&ordered) + 8 - size, size);
}

void Output::appendTrailer(quint64 objects, quint64 table, int offsetSize)
{
    constexpr quint64 top = 0;
    m_bytes.append(6, '\0').append(char(offsetSize)).append(char(m_referenceSize));
    appendBigEndian(objects, 8);
    appendBigEndian(top, 8);
    appendBigEndian(table, 8);
}

} // namespace

QByteArray write(const PropertyList &root)
{
    return Output(BinaryNumbering(root)).bytes();
}

} // namespace velvane::BinaryWriter
