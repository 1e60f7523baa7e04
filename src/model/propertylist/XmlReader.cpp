#include "model/propertylist/XmlReader.h"

#include "model/DocumentError.h"
#include "model/Excerpt.h"

#include <QBuffer>
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

std::optional<PropertyList> data(QStringView text)
{
    QByteArray base64 = text.toLatin1();
    base64.removeIf([](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
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
    void readTruth(bool truth);
    PropertyList checked(std::optional<PropertyList> value, const char *what);
    QStringView text();
    void add(PropertyList value);
    [[noreturn]] void failToParse() const;
    [[noreturn]] void fail(const QString &what) const;

    QXmlStreamReader m_xml;
    // A stack of our own: nesting must not grow the thread's.
    std::vector<Level> m_open;
    std::optional<PropertyList> m_root;
    quint64 m_values = 0;
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
        fail(QStringLiteral("unknown element “%1”").arg(excerpt(element)));
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
    add(PropertyList(std::move(level.parts)));
}

void Parser::open(PropertyList::Value parts)
{
    if (m_open.size() >= PropertyList::maxDepth)
        fail(QStringLiteral("nested too deeply"));
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
        const QString key = name.toString();
        known = m_keys.insert(key, key);
    }
    m_open.back().key = *known;
}

bool Parser::readScalar(QStringView element)
{
    if (element == QLatin1String("string"))
        add(text().toString());
    else if (element == QLatin1String("real"))
        add(checked(real(text()), "a real that is no number"));
    else if (element == QLatin1String("integer"))
        add(checked(integer(text()), "an integer that is no number of 64 bits"));
    else if (element == QLatin1String("true") || element == QLatin1String("false"))
        readTruth(element.front() == QLatin1Char('t'));
    else if (element == QLatin1String("data"))
        add(checked(data(text()), "data that is not base64"));
    else if (element == QLatin1String("date"))
        add(checked(date(text()), "a date that is none"));
    else
        return false;
    return true;
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

// The text of the element just begun, to its end; valid until the next call.
QStringView Parser::text()
{
    m_text.resize(0);
    for (;;) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            m_text.append(m_xml.text());
            break;
        case QXmlStreamReader::EndElement:
            return m_text;
        case QXmlStreamReader::StartElement:
            fail(QStringLiteral("an element inside of a text"));
        case QXmlStreamReader::Invalid:
            failToParse();
        default:
            break; // comments and the like
        }
    }
}

void Parser::add(PropertyList value)
{
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
    fail(excerpt(m_xml.errorString(), aLine));
}

void Parser::fail(const QString &what) const
{
    throw DocumentError(QStringLiteral("damaged property list: line %1, column %2: %3")
                            .arg(m_xml.lineNumber())
                            .arg(m_xml.columnNumber())
                            .arg(what));
}

} // namespace

PropertyList read(const QByteArray &bytes)
{
    // In pieces from a device: from the bytes themselves it would make text of all at once.
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return Parser(buffer).parse();
}

} // namespace velvane::XmlReader
