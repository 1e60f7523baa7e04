#include "update/Appcast.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace velvane {

namespace {

const QString sparkle = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
constexpr qsizetype signatureLength = 64;

QString tr(const char *text)
{
    return QCoreApplication::translate("Appcast", text);
}

/// An item as it is written.
struct Item {
    QString version, shortVersion, link, channel, os;
    QString url, length, signature;
    bool hasEnclosure = false;
};

QDateTime dateOf(QString text)
{
    static const QRegularExpression zone(QStringLiteral(" (GMT|UTC?|Z)$"));
    const QDateTime date =
        QDateTime::fromString(text.replace(zone, QStringLiteral(" +0000")), Qt::RFC2822Date);
    return date.isValid() ? date.toUTC() : QDateTime();
}

QUrl secureAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool secure = url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
    return secure ? url : QUrl();
}

bool isSignature(const QString &text)
{
    const auto bytes =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return bytes && (*bytes).size() == signatureLength;
}

/// Walks the XML; what is missing is found out afterwards.
class Reader {
public:
    explicit Reader(const QByteArray &xml) : m_xml(xml) {}

    std::variant<Appcast, UpdateError> read();

private:
    bool readToStart();
    void readChannel();
    void readItem();
    void readEnclosure(Item &item);
    QString text() { return m_xml.readElementText().trimmed(); }
    bool isSparkle(QStringView name) const
    {
        return m_xml.namespaceUri() == sparkle && m_xml.name() == name;
    }
    bool isPlain(QStringView name) const
    {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == name;
    }
    QString lacking(const Item &item, Appcast &feed) const;

    QXmlStreamReader m_xml;
    bool m_hasChannel = false;
    QString m_built, m_published, m_link;
    QList<Item> m_items;
};

// To the root element; a document type would bring entities, which no feed needs.
bool Reader::readToStart()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::DTD:
            return false;
        case QXmlStreamReader::StartElement:
            return isPlain(u"rss");
        default:
            break;
        }
    }
    return false;
}

void Reader::readEnclosure(Item &item)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    item.hasEnclosure = true;
    item.url = attributes.value(QLatin1String("url")).toString();
    item.length = attributes.value(QLatin1String("length")).toString();
    item.signature = attributes.value(sparkle, QLatin1String("edSignature")).toString();
    item.os = attributes.value(sparkle, QLatin1String("os")).toString();
    if (item.version.isEmpty())
        item.version = attributes.value(sparkle, QLatin1String("version")).toString();
    if (item.shortVersion.isEmpty())
        item.shortVersion =
            attributes.value(sparkle, QLatin1String("shortVersionString")).toString();
    m_xml.skipCurrentElement();
}

void Reader::readItem()
{
    Item item;
    while (m_xml.readNextStartElement()) {
        if (isSparkle(u"version"))
            item.version = text();
        else if (isSparkle(u"shortVersionString"))
            item.shortVersion = text();
        else if (isSparkle(u"channel"))
            item.channel = text();
        else if (isPlain(u"link"))
            item.link = text();
        else if (isPlain(u"enclosure"))
            readEnclosure(item);
        else
            m_xml.skipCurrentElement();
    }
    m_items.append(item);
}

void Reader::readChannel()
{
    m_hasChannel = true;
    while (m_xml.readNextStartElement()) {
        if (isPlain(u"item"))
            readItem();
        else if (isPlain(u"lastBuildDate"))
            m_built = text();
        else if (isPlain(u"pubDate"))
            m_published = text();
        else if (isPlain(u"link"))
            m_link = text();
        else
            m_xml.skipCurrentElement();
    }
}

// Adds the item to the feed, or names the field that it lacks or that cannot be read.
QString Reader::lacking(const Item &item, Appcast &feed) const
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[0-9A-Za-z .+_-]{1,40}\z)"));
    const auto version = ProgramVersion::fromString(item.version);
    if (!version)
        return QStringLiteral("sparkle:version");
    const QUrl page = secureAddress(item.link.isEmpty() ? m_link : item.link);
    if (page.isEmpty())
        return QStringLiteral("link");
    if (!item.hasEnclosure)
        return QStringLiteral("enclosure");
    if (secureAddress(item.url).isEmpty())
        return QStringLiteral("url");
    bool isLength = false;
    if (item.length.toULongLong(&isLength) == 0 || !isLength)
        return QStringLiteral("length");
    if (!isSignature(item.signature))
        return QStringLiteral("sparkle:edSignature");
    const bool isNamed = plain.match(item.shortVersion).hasMatch();
    feed.releases.append({*version, isNamed ? item.shortVersion : version->text(), page});
    return {};
}

std::variant<Appcast, UpdateError> Reader::read()
{
    if (readToStart())
        while (m_xml.readNextStartElement()) {
            if (isPlain(u"channel") && !m_hasChannel)
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (m_xml.hasError() || !m_hasChannel)
        return UpdateError{tr("The update feed is malformed.")};

    const auto without = [](const QString &field) {
        return UpdateError{tr("The update feed has no valid “%1”.").arg(field)};
    };
    Appcast feed;
    feed.date = dateOf(m_built.isEmpty() ? m_published : m_built);
    if (!feed.date.isValid())
        return without(QStringLiteral("lastBuildDate"));
    for (const Item &item : m_items) {
        const bool isOurs = item.channel.isEmpty() && (item.os.isEmpty() || item.os == u"linux");
        if (const QString field = isOurs ? lacking(item, feed) : QString(); !field.isEmpty())
            return without(field);
    }
    return feed;
}

} // namespace

const Release *Appcast::newest() const
{
    const auto found =
        std::max_element(releases.begin(), releases.end(),
                         [](const Release &a, const Release &b) { return a.version < b.version; });
    return found == releases.end() ? nullptr : &*found;
}

std::variant<Appcast, UpdateError> Appcast::parse(const QByteArray &xml)
{
    return Reader(xml).read();
}

} // namespace velvane
