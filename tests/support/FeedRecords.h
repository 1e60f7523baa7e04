#pragma once

#include <QByteArray>
#include <QString>

#include <openssl/evp.h>

#include <memory>

/// A pair of Ed25519 keys that signs feeds as sign_update does.
class FeedSigner {
public:
    FeedSigner() : m_key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free) {}

    /// 32 bytes.
    QByteArray publicKey() const
    {
        QByteArray key(32, '\0');
        std::size_t length = std::size_t(key.size());
        EVP_PKEY_get_raw_public_key(m_key.get(), bytes(key), &length);
        return key;
    }
    /// 64 bytes.
    QByteArray signature(const QByteArray &content) const
    {
        QByteArray result(64, '\0');
        std::size_t length = std::size_t(result.size());
        const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> digest(EVP_MD_CTX_new(),
                                                                             &EVP_MD_CTX_free);
        EVP_DigestSignInit(digest.get(), nullptr, nullptr, nullptr, m_key.get());
        EVP_DigestSign(digest.get(), bytes(result), &length,
                       reinterpret_cast<const unsigned char *>(content.constData()),
                       std::size_t(content.size()));
        return result;
    }
    /// The content with the comment that signs it.
    QByteArray signedFeed(const QByteArray &content) const
    {
        return content + "<!-- sparkle-signatures:\nedSignature: " + signature(content).toBase64()
               + "\nlength: " + QByteArray::number(content.size()) + "\n-->\n";
    }

private:
    static unsigned char *bytes(QByteArray &array)
    {
        return reinterpret_cast<unsigned char *>(array.data());
    }

    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> m_key;
};

/// A feed's XML, as the makers write it, around its items.
inline QByteArray feedOf(const QByteArray &items,
                         const QByteArray &date = "Sat, 21 Nov 2026 12:00:00 +0000")
{
    return R"(<?xml version="1.0" encoding="utf-8" standalone="yes"?>
<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle" version="2.0">
  <channel>
    <title>Velvane</title>
    <link>https://velvane.example/download</link>
    <lastBuildDate>)"
           + date + "</lastBuildDate>\n" + items + "  </channel>\n</rss>\n";
}

/// One version's item.
inline QByteArray itemOf(const QByteArray &version)
{
    return R"(    <item>
      <title>Velvane )"
           + version + R"(</title>
      <description><![CDATA[<ul><li>Better.</li></ul>]]></description>
      <pubDate>Sat, 21 Nov 2026 12:00:00 +0000</pubDate>
      <sparkle:version>)"
           + version + R"(</sparkle:version>
      <enclosure url="https://velvane.example/velvane-)"
           + version + R"(.deb" length="4711" type="application/vnd.debian.binary-package"
                 sparkle:edSignature=")"
           + QByteArray(64, 's').toBase64() + R"("/>
    </item>
)";
}
