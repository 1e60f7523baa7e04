#include "app/UpdaterController.h"

#include "support/FeedRecords.h"
#include "support/FeedServer.h"
#include "support/Print.h"
#include "support/Until.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QDateTime noon({2026, 11, 21}, {12, 0}, Qt::UTC);

struct UpdaterControllerTest : testing::Test {
    UpdaterControllerTest() { server.serve(signer.signedFeed(feedOf(itemOf("0.2.0")))); }

    UpdateSource source() const
    {
        UpdateSource result;
        result.feed = {.address = server.address(), .tls = server.trusting()};
        result.publicKey = signer.publicKey();
        result.version = "0.1.0";
        return result;
    }
    /// What somebody who asks is told.
    static UpdateAnswer check(UpdaterController &updater)
    {
        std::optional<UpdateAnswer> answer;
        const auto listening =
            QObject::connect(&updater, &UpdaterController::checked,
                             [&](const UpdateAnswer &checked) { answer = checked; });
        updater.checkForUpdates();
        until([&] { return answer.has_value(); });
        QObject::disconnect(listening);
        return *answer;
    }
    UpdateAnswer check(const UpdateSource &source)
    {
        UpdaterController updater(source, settings);
        return check(updater);
    }
    /// Lets a look that nobody asked for end; what it found, or nothing.
    QString lookedAt(UpdaterController &updater, const QDateTime &now) const
    {
        QString name;
        const auto listening = QObject::connect(&updater, &UpdaterController::updateFound,
                                                [&](const QString &found) { name = found; });
        updater.tick(now);
        until([&] { return updater.findChildren<FeedDownload *>().isEmpty() || letGo(); });
        QObject::disconnect(listening);
        return name;
    }
    static bool letGo()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return false;
    }

    FeedServer server;
    FeedSigner signer;
    QTemporaryDir folder;
    QSettings settings{folder.filePath("settings.ini"), QSettings::IniFormat};
};

} // namespace

TEST_F(UpdaterControllerTest, OffersTheDownloadPageOfANewerVersion)
{
    const UpdateAnswer answer = check(source());
    EXPECT_EQ(answer.sentence, "Velvane 0.2.0 is available.");
    EXPECT_EQ(answer.detail, "You have version 0.1.0. The download page opens in your browser.");
    EXPECT_EQ(answer.page, QUrl("https://velvane.example/download"));
    EXPECT_EQ(server.requests().size(), 1) << "only the feed is fetched";
}

TEST_F(UpdaterControllerTest, TheNewestVersionHasNothingToOffer)
{
    for (const char *version : {"0.2.0", "0.2", "0.10.0", "1.0-beta"}) {
        UpdateSource newest = source();
        newest.version = version;
        const UpdateAnswer answer = check(newest);
        EXPECT_EQ(answer.sentence,
                  QStringLiteral("Velvane %1 is the newest version.").arg(version));
        EXPECT_TRUE(answer.page.isEmpty());
    }
    server.serve(signer.signedFeed(feedOf("")));
    EXPECT_EQ(check(source()).sentence, "Velvane 0.1.0 is the newest version.");
}

TEST_F(UpdaterControllerTest, WithoutAFeedNothingIsChecked)
{
    UpdateSource none = source();
    none.feed.address.clear();
    EXPECT_EQ(check(none).sentence,
              "No update feed is configured, so Velvane cannot check for updates.");
    EXPECT_FALSE(UpdaterController(none, settings).isAvailable());
}

TEST_F(UpdaterControllerTest, WhoeverInstalledItBringsTheUpdates)
{
    for (const auto owner : {PackageOwner::Owner::flatpak, PackageOwner::Owner::packageManager}) {
        UpdateSource owned = source();
        owned.owner = std::async(std::launch::async, [owner] { return owner; });
        UpdaterController updater(owned, settings);
        EXPECT_FALSE(updater.isAvailable());
        EXPECT_EQ(check(updater).sentence, PackageOwner::explanation(owner));
        updater.tick(noon);
        updater.tick(noon.addDays(2));
    }
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_TRUE(settings.allKeys().isEmpty());
}

TEST_F(UpdaterControllerTest, EveryFailureIsOneSentence)
{
    const QByteArray feed = feedOf(itemOf("0.2.0"));
    server.serve(feed);
    EXPECT_EQ(check(source()).sentence, "The update feed is not signed.");
    server.serve(FeedSigner().signedFeed(feed));
    EXPECT_EQ(check(source()).sentence, "The signature of the update feed is wrong.");
    server.serve(signer.signedFeed("<rss>"));
    EXPECT_EQ(check(source()).sentence, "The update feed is malformed.");
    server.serve(signer.signedFeed(QByteArray(feed).replace("length=", "size=")));
    EXPECT_EQ(check(source()).sentence, "The update feed has no valid “length”.");
    server.serve(signer.signedFeed(feed + QByteArray(256 * 1024, ' ')));
    EXPECT_EQ(check(source()).sentence, "The update feed is longer than 256 KiB.");
    server.redirect("http://localhost/feed");
    EXPECT_EQ(check(source()).sentence,
              "The update server redirects to an address that is not secure.");
    server.respond("HTTP/1.1 500 Oh\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(check(source()).sentence, "The update server answered with status 500.");
    server.close();
    EXPECT_EQ(check(source()).sentence, "The update server localhost could not be reached.");
    EXPECT_FALSE(settings.contains("updates/lastFeed"));
}

TEST_F(UpdaterControllerTest, AFeedOlderThanTheLastIsRefused)
{
    EXPECT_EQ(check(source()).sentence, "Velvane 0.2.0 is available.");
    server.serve(signer.signedFeed(feedOf("", "Fri, 20 Nov 2026 12:00:00 +0000")));
    EXPECT_EQ(check(source()).sentence, "The update feed is older than one that was read before.");
}

TEST_F(UpdaterControllerTest, TheFirstStartIsLeftAloneAndTheNextDayLooks)
{
    UpdaterController updater(source(), settings);
    EXPECT_EQ(lookedAt(updater, noon), "");
    EXPECT_EQ(lookedAt(updater, noon.addSecs(24 * 60 * 60 - 1)), "");
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_EQ(lookedAt(updater, noon.addDays(1)), "0.2.0");
}

TEST_F(UpdaterControllerTest, LooksOnceADayWhateverCameOfIt)
{
    settings.setValue("updates/lastCheck", noon.addDays(-1).toString(Qt::ISODate));
    server.serve("nothing signed");
    EXPECT_EQ(lookedAt(*std::make_unique<UpdaterController>(source(), settings), noon), "");
    EXPECT_EQ(server.requests().size(), 1);
    // Another start, the same day.
    UpdaterController updater(source(), settings);
    EXPECT_EQ(lookedAt(updater, noon.addSecs(3600)), "");
    EXPECT_EQ(server.requests().size(), 1);
    server.serve(signer.signedFeed(feedOf(itemOf("0.3.0"))));
    EXPECT_EQ(lookedAt(updater, noon.addDays(1)), "0.3.0");
}

TEST_F(UpdaterControllerTest, AClockThatWasSetBackDoesNotEndTheLooks)
{
    settings.setValue("updates/lastCheck", noon.addYears(50).toString(Qt::ISODate));
    UpdaterController updater(source(), settings);
    EXPECT_EQ(lookedAt(updater, noon), "0.2.0");
}

TEST_F(UpdaterControllerTest, DoesNotLookByItselfWhenToldNotTo)
{
    settings.setValue("updates/lastCheck", noon.addDays(-9).toString(Qt::ISODate));
    UpdaterController updater(source(), settings);
    EXPECT_TRUE(updater.isAutomatic());
    updater.setAutomatic(false);
    EXPECT_EQ(lookedAt(updater, noon), "");
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_EQ(check(updater).sentence, "Velvane 0.2.0 is available.");
}

TEST_F(UpdaterControllerTest, WhoAsksDuringALookIsAnsweredByIt)
{
    settings.setValue("updates/lastCheck", noon.addDays(-1).toString(Qt::ISODate));
    UpdaterController updater(source(), settings);
    updater.tick(noon);
    EXPECT_EQ(check(updater).sentence, "Velvane 0.2.0 is available.");
    EXPECT_EQ(server.requests().size(), 1);
}

} // namespace velvane
