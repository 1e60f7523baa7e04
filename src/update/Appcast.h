#pragma once

#include "update/ProgramVersion.h"
#include "update/UpdateError.h"

#include <QDateTime>
#include <QUrl>

#include <variant>

namespace velvane {

/// One version that a feed offers for this system.
struct Release {
    ProgramVersion version;
    QString name; ///< the version as the user knows it; plain characters only
    QUrl page;    ///< where it can be downloaded; https
};

/// A feed of versions: RSS with the elements of Sparkle's appcasts.
///
/// Read are the channel's `lastBuildDate` (or `pubDate`) and of each `item` its `sparkle:version`
/// (or the same attribute of the `enclosure`), `sparkle:shortVersionString`, `link` (or else that
/// of the channel) and `enclosure` with `url`, `length` and `sparkle:edSignature`. Items of a
/// `sparkle:channel` and enclosures with a `sparkle:os` other than "linux" are passed over. The
/// enclosure is never fetched: only that it is fully described is required.
struct Appcast {
    QDateTime date; ///< when the feed was made, UTC
    QList<Release> releases;

    /// The highest version, or null.
    const Release *newest() const;

    /// Reads a feed's XML; the bytes must have been found authentic before. Refuses document types,
    /// and any release that lacks a field. Thread-safe.
    static std::variant<Appcast, UpdateError> parse(const QByteArray &xml);
};

} // namespace velvane
