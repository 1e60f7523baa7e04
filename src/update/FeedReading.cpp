#include "update/FeedReading.h"

#include "update/FeedSignature.h"

#include <QCoreApplication>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FeedReading", text);
}

} // namespace

std::variant<Appcast, UpdateError> readFeed(const QByteArray &feed, const FeedTrust &trust)
{
    const auto divided = FeedSignature::divide(feed);
    if (!divided)
        return UpdateError{tr("The update feed is not signed.")};
    if (!FeedSignature::isValid(*divided, trust.publicKey))
        return UpdateError{tr("The signature of the update feed is wrong.")};
    auto read = Appcast::parse(divided->content);
    const auto *appcast = std::get_if<Appcast>(&read);
    if (appcast && trust.seen.isValid() && appcast->date < trust.seen)
        return UpdateError{tr("The update feed is older than one that was read before.")};
    return read;
}

} // namespace velvane
