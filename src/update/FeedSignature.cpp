#include "update/FeedSignature.h"

#include <openssl/evp.h>

#include <memory>

namespace velvane::FeedSignature {

namespace {

constexpr qsizetype keyLength = 32;
constexpr qsizetype signatureLength = 64;

template <auto free>
struct Free {
    template <typename Type>
    void operator()(Type *object) const
    {
        free(object);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Free<EVP_PKEY_free>>;
using Digest = std::unique_ptr<EVP_MD_CTX, Free<EVP_MD_CTX_free>>;

const unsigned char *bytes(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

// The value of a line "name: value".
QByteArray value(const QList<QByteArray> &lines, QByteArrayView name)
{
    for (const QByteArray &line : lines)
        if (line.startsWith(name))
            return line.sliced(name.size()).trimmed();
    return {};
}

} // namespace

std::optional<SignedFeed> divide(const QByteArray &feed)
{
    static const QByteArray opening = "<!-- sparkle-signatures:";
    static const QByteArray closing = "-->";
    const qsizetype start = feed.lastIndexOf(opening);
    if (start < 0 || !feed.trimmed().endsWith(closing))
        return {};
    const qsizetype end = feed.indexOf(closing, start);
    if (end < 0 || end != feed.lastIndexOf(closing))
        return {};
    const qsizetype first = start + opening.size();
    const QList<QByteArray> lines = feed.sliced(first, end - first).split('\n');
    const auto signature = QByteArray::fromBase64Encoding(value(lines, "edSignature:"),
                                                          QByteArray::AbortOnBase64DecodingErrors);
    if (!signature || (*signature).size() != signatureLength
        || value(lines, "length:") != QByteArray::number(start))
        return {};
    return SignedFeed{feed.first(start), *signature};
}

bool isValid(const SignedFeed &feed, const QByteArray &publicKey)
{
    if (publicKey.size() != keyLength)
        return false;
    const Key key(EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytes(publicKey),
                                              std::size_t(publicKey.size())));
    const Digest digest(EVP_MD_CTX_new());
    return key && digest
           && EVP_DigestVerifyInit(digest.get(), nullptr, nullptr, nullptr, key.get()) == 1
           && EVP_DigestVerify(digest.get(), bytes(feed.signature),
                               std::size_t(feed.signature.size()), bytes(feed.content),
                               std::size_t(feed.content.size()))
                  == 1;
}

} // namespace velvane::FeedSignature
