#pragma once

#include <QByteArray>

#include <optional>

namespace velvane {

/// Who made a feed, and that nobody changed it.
///
/// What is signed is the whole feed, byte for byte: versions, addresses and date alike. The Ed25519
/// signature stands behind it in the comment that Sparkle's sign_update writes:
///
///     <!-- sparkle-signatures:
///     edSignature: 64 bytes, Base64
///     length: number of bytes before this comment
///     -->
///
/// So nothing that is not signed reaches the XML reader.
namespace FeedSignature {

/// A feed divided at its trailing comment.
struct SignedFeed {
    QByteArray content;   ///< what is signed
    QByteArray signature; ///< 64 bytes
};

/// Divides a feed; nothing unless it ends with one such comment that fits it. Blanks may follow.
std::optional<SignedFeed> divide(const QByteArray &feed);

/// Is the signature that of the content? The key is the 32 bytes of an Ed25519 public key; a key of
/// another length verifies nothing. Thread-safe.
bool isValid(const SignedFeed &feed, const QByteArray &publicKey);

} // namespace FeedSignature

} // namespace velvane
