#include "model/propertylist/XmlReader.h"

#include "base/PlainLine.h"
#include "model/DocumentError.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QXmlStreamReader>

#include <optional>
#include <vector>

namespace velvane::XmlReader {

namespace {

// An array or dictionary that is not closed yet.
struct Level {
    PropertyList::Value parts;
    // Of a dictionary: the key that waits for its value.
    std::optional<QString> key = std::nullopt;
};

std::optional<PropertyList> integer(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(QLatin1Char('-'));
    if (negative || text.startsWith(QLatin1Char('+')))
        text = text.sliced(1);
    const bool hexadecimal = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    if (hexadecimal)
        text = text.sliced(2);
    if (text.isEmpty() || !text.front().isLetterOrNumber())
        return {};
    bool ok = false;
    const quint64 magnitude = text.toULongLong(&ok, hexadecimal ? 16 : 10);
    constexpr quint64 largestNegative = quint64(1) << 63;
    if (!ok || (negative && magnitude > largestNegative))
        return {};
    return negative ? PropertyList(qint64(0 - magnitude)) : PropertyList(magnitude);
}

std::optional<PropertyList> real(QStringView text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok ? std::optional(PropertyList(number)) : std::nullopt;
}

std::optional<PropertyList> date(QStringView text)
{
    constexpr qint64 startOf2001 = 978'307'200;
    const QDateTime time = QDateTime::fromString(text.trimmed().toString(), Qt::ISODate);
    if (!time.isValid() || time.timeSpec() != Qt::UTC)
        return {};
    return PropertyList(PropertyList::Date{double(time.toSecsSinceEpoch() - startOf2001)});
}

// Adds what is no white space.
void appendBase64(QByteArray &base64, QStringView text)
{
    base64.reserve(base64.size() + text.size());
    for (const QChar character : text) {
        // What Latin-1 lacks is no base64 either.
        const char c = character.toLatin1();
        if (c != ' ' && (c < '\t' || c > '\r'))
            base64.append(c);
    }
}

std::optional<PropertyList> data(QByteArray base64)
{
    auto decoded =
        QByteArray::fromBase64Encoding(std::move(base64), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(PropertyList(std::move(*decoded))) : std::nullopt;
}

class Parser {
public:
    explicit Parser(QIODevice &bytes) : m_xml(&bytes) { m_xml.setNamespaceProcessing(false); }

    PropertyList parse();

private:
    void start();
    void end();
    void open(PropertyList::Value parts);
    void readKey();
    bool readScalar(QStringView element);
    void readText();
    void readTruth(bool truth);
    PropertyList checked(std::optional<PropertyList> value, const char *what);
    template <typename Take>
    void eachPiece(const Take &take);
    QStringView text();
    QByteArray base64();
    void add(PropertyList value);
    void countMemory(qsizetype size);
    [[noreturn]] void failToParse() const;
    [[noreturn]] void fail(const QString &what) const;

    QXmlStreamReader m_xml;
    // A stack of our own: nesting must not grow the thread's.
    std::vector<Level> m_open;
    std::optional<PropertyList> m_root;
    quint64 m_values = 0;
    qsizetype m_memory = 0;
    bool m_inPlist = false;
    QString m_text;
    // Thousands of dictionaries have the same keys: they share them.
    QHash<QStringView, QString> m_keys;
};

PropertyList Parser::parse()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            start();
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace())
                fail(QStringLiteral("text outside of a value"));
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError())
        failToParse();
    if (!m_root)
        fail(QStringLiteral("no value"));
    return std::move(*m_root);
}

void Parser::start()
{
    const QStringView element = m_xml.name();
    if (element == QLatin1String("key")) {
        readKey();
    } else if (element == QLatin1String("dict")) {
        open(PropertyList::Dictionary());
    } else if (element == QLatin1String("array")) {
        open(PropertyList::Array());
    } else if (element == QLatin1String("plist") && !m_inPlist && m_open.empty() && !m_root) {
        m_inPlist = true;
    } else if (!readScalar(element)) {
        fail(QStringLiteral("unknown element “%1”")
                 .arg(plainLine(element, PropertyList::longestQuote)));
    }
}

void Parser::end()
{
    if (m_open.empty())
        return; // of <plist>
    Level level = std::move(m_open.back());
    m_open.pop_back();
    if (level.key)
        fail(QStringLiteral("a key without a value"));
    // Millions of small ones would waste as much again.
    if (auto *array = std::get_if<PropertyList::Array>(&level.parts))
        array->squeeze();
    else
        std::get<PropertyList::Dictionary>(level.parts).squeeze();
    add(PropertyList(std::move(level.parts)));
}

void Parser::open(PropertyList::Value parts)
{
    if (m_open.size() >= PropertyList::maxDepth)
        fail(QStringLiteral("nested too deeply"));
    countMemory(PropertyList::sharedMemory);
    m_open.push_back({std::move(parts)});
}

void Parser::readKey()
{
    if (m_open.empty() || !std::holds_alternative<PropertyList::Dictionary>(m_open.back().parts))
        fail(QStringLiteral("a key outside of a dictionary"));
    if (m_open.back().key)
        fail(QStringLiteral("a key without a value"));
    ++m_values;
    const QStringView name = text();
    auto known = m_keys.constFind(name);
    if (known == m_keys.constEnd()) {
        countMemory(2 * PropertyList::sharedMemory + 2 * name.size());
        const QString key = name.toString();
        known = m_keys.insert(key, key);
    }
    m_open.back().key = *known;
}

bool Parser::readScalar(QStringView element)
{
    if (element == QLatin1String("string"))
        readText();
    else if (element == QLatin1String("real"))
        add(checked(real(text()), "a real that is no number"));
    else if (element == QLatin1String("integer"))
        add(checked(integer(text()), "an integer that is no number of 64 bits"));
    else if (element == QLatin1String("true") || element == QLatin1String("false"))
        readTruth(element.front() == QLatin1Char('t'));
    else if (element == QLatin1String("data"))
        add(checked(data(base64()), "data that is not base64"));
    else if (element == QLatin1String("date"))
        add(checked(date(text()), "a date that is none"));
    else
        return false;
    return true;
}

void Parser::readText()
{
    const QStringView content = text();
    countMemory(PropertyList::sharedMemory + 2 * content.size());
    add(content.toString());
}

void Parser::readTruth(bool truth)
{
    if (!text().isEmpty())
        fail(QStringLiteral("text outside of a value"));
    add(truth);
}

PropertyList Parser::checked(std::optional<PropertyList> value, const char *what)
{
    if (!value)
        fail(QLatin1String(what));
    return std::move(*value);
}

// Hands over the text of the element just begun, to its end.
template <typename Take>
void Parser::eachPiece(const Take &take)
{
    for (;;) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            take(m_xml.text());
            break;
        case QXmlStreamReader::EndElement:
            return;
        case QXmlStreamReader::StartElement:
            fail(QStringLiteral("an element inside of a text"));
        case QXmlStreamReader::Invalid:
            failToParse();
        default:
            break; // comments and the like
        }
    }
}

// Valid until the next call.
QStringView Parser::text()
{
    // Characters; the memory for it is kept for the next one.
    constexpr qsizetype longest = qsizetype(1) << 23;
    m_text.resize(0);
    eachPiece([this](QStringView piece) {
        if (piece.size() > longest - m_text.size())
            fail(QStringLiteral("a text that is too long"));
        m_text.append(piece);
    });
    return m_text;
}

QByteArray Parser::base64()
{
    QByteArray all;
    countMemory(PropertyList::sharedMemory);
    eachPiece([&](QStringView piece) {
        countMemory(piece.size());
        appendBase64(all, piece);
    });
    return all;
}

void Parser::countMemory(qsizetype size)
{
    m_memory += size;
    if (m_memory > PropertyList::maxMemory)
        fail(QStringLiteral("too much for the memory"));
}

void Parser::add(PropertyList value)
{
    countMemory(PropertyList::valueMemory);
    if (++m_values > PropertyList::maxValues)
        fail(QStringLiteral("too many values"));
    if (m_open.empty()) {
        if (m_root)
            fail(QStringLiteral("more than one value"));
        m_root = std::move(value);
        return;
    }
    Level &level = m_open.back();
    if (auto *array = std::get_if<PropertyList::Array>(&level.parts)) {
        array->append(std::move(value));
        return;
    }
    if (!level.key)
        fail(QStringLiteral("a value without a key"));
    std::get<PropertyList::Dictionary>(level.parts)
        .append({*std::exchange(level.key, std::nullopt), std::move(value)});
}

void Parser::failToParse() const
{
    // The parser's words quote the file, however long.
    constexpr qsizetype aLine = 100;
    fail(plainLine(m_xml.errorString(), aLine));
}

void Parser::fail(const QString &what) const
{
    throw DocumentError(
        QCoreApplication::translate("XmlReader", "damaged property list: line %1, column %2: %3")
            .arg(m_xml.lineNumber())
            .arg(m_xml.columnNumber())
            .arg(what));
}

} // namespace

PropertyList read(QIODevice &file)
{
    return Parser(file).parse();
}

PropertyList read(const QByteArray &bytes)
{
    // In pieces from a device: from the bytes themselves it would make text of all at once.
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

} // namespace velvane::XmlReader
