#pragma once

#include "update/Appcast.h"

namespace velvane {

/// What makes a feed one to believe.
struct FeedTrust {
    QByteArray publicKey; ///< Ed25519, 32 bytes
    QDateTime seen;       ///< the date of the newest feed so far; invalid when there was none
};

/// From a feed's bytes to what it offers: signature, then content, then date. A feed older than one
/// that was seen is refused, since somebody may hold back versions by sending an old one again.
/// Thread-safe.
std::variant<Appcast, UpdateError> readFeed(const QByteArray &feed, const FeedTrust &trust);

} // namespace velvane
