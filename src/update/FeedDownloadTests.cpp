#include "update/FeedDownload.h"

#include "support/FeedServer.h"
#include "support/Print.h"
#include "support/Until.h"

#include <QSet>
#include <QTcpServer>

#include <gtest/gtest.h>

namespace velvane {

namespace {

using namespace std::chrono_literals;

struct FeedDownloadTest : testing::Test {
    FeedDownloadTest()
    {
        request.address = server.address();
        request.tls = server.trusting();
    }

    /// The feed, or the sentence that says why there is none.
    QString outcome() const
    {
        FeedDownload download(request);
        std::optional<QString> result;
        QObject::connect(&download, &FeedDownload::received,
                         [&](const QByteArray &feed) { result = "received " + feed; });
        QObject::connect(&download, &FeedDownload::failed,
                         [&](const QString &sentence) { result = sentence; });
        download.start();
        EXPECT_FALSE(result) << "before start() has returned";
        until([&] { return result.has_value(); });
        return *result;
    }

    FeedServer server;
    FeedRequest request;
};

} // namespace

TEST_F(FeedDownloadTest, BringsTheFeedAsItWasSent)
{
    server.serve("<rss>\r\n</rss>\n");
    EXPECT_EQ(outcome(), "received <rss>\r\n</rss>\n");
}

TEST_F(FeedDownloadTest, SaysNothingAboutTheUser)
{
    server.serve("feed");
    outcome();
    ASSERT_EQ(server.requests().size(), 1);
    QStringList fields;
    for (const QByteArray &line : server.requests().constFirst().trimmed().split('\n').sliced(1))
        fields << line.trimmed();
    fields.sort();
    EXPECT_EQ(fields,
              (QStringList{"Accept-Encoding: identity", "Accept-Language: en",
                           "Connection: Keep-Alive", "Host: " + server.address().authority(),
                           "User-Agent: Velvane/" VELVANE_VERSION}));
}

TEST_F(FeedDownloadTest, AnAddressWithoutTlsIsNotAsked)
{
    request.address.setScheme("http");
    EXPECT_EQ(outcome(), "The address of the update feed is not secure.");
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(FeedDownloadTest, AServerThatIsNotThereIsOneSentence)
{
    server.close();
    EXPECT_EQ(outcome(), "The update server localhost could not be reached.");
}

TEST_F(FeedDownloadTest, AHostThatIsNotKnownIsOneSentence)
{
    request.address.setHost("feed.invalid");
    EXPECT_EQ(outcome(), "The update server feed.invalid could not be reached.");
}

TEST_F(FeedDownloadTest, AnUnknownCertificateIsRefused)
{
    server.serve("feed");
    request.tls.setCaCertificates({Certificate::forLocalhost().certificate});
    EXPECT_EQ(outcome(), "The update server localhost could not prove its identity.");
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(FeedDownloadTest, ACertificateForAnotherNameIsRefused)
{
    server.serve("feed");
    request.address.setHost("127.0.0.1");
    EXPECT_EQ(outcome(), "The update server 127.0.0.1 could not prove its identity.");
}

TEST_F(FeedDownloadTest, AServerThatSpeaksNoTlsIsRefused)
{
    QTcpServer plain;
    QObject::connect(&plain, &QTcpServer::newConnection, [&plain] {
        QTcpSocket *socket = plain.nextPendingConnection();
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nfeed");
        socket->disconnectFromHost();
    });
    ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
    request.address.setPort(plain.serverPort());
    EXPECT_EQ(outcome(), "The update server localhost could not prove its identity.");
}

TEST_F(FeedDownloadTest, AnotherStatusIsNamed)
{
    EXPECT_EQ(outcome(), "The update server answered with status 404.");
    server.respond("HTTP/1.1 503 Busy\r\nContent-Length: 4\r\nConnection: close\r\n\r\nfeed");
    EXPECT_EQ(outcome(), "The update server answered with status 503.");
    server.respond("HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"a\"\r\n"
                   "Content-Length: 0\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(outcome(), "The update server answered with status 401.");
    server.respond("HTTP/1.1 204 Nothing\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(outcome(), "The update server answered with status 204.");
}

TEST_F(FeedDownloadTest, AnAnswerThatIsNoHttpIsRefused)
{
    server.respond("feed\r\n\r\n");
    EXPECT_EQ(outcome(), "The update server localhost could not be reached.");
}

TEST_F(FeedDownloadTest, AnAnswerThatBreaksOffIsRefused)
{
    server.respond("HTTP/1.1 200 OK\r\nContent-Length: 400\r\n\r\nfeed");
    EXPECT_EQ(outcome(), "The update server localhost could not be reached.");
}

TEST_F(FeedDownloadTest, TheLongestFeedIsReadAndALongerOneRefused)
{
    request.longest = 5120;
    server.serve(QByteArray(5120, 'f'));
    EXPECT_EQ(outcome().size(), 5129);
    server.serve(QByteArray(5121, 'f'));
    EXPECT_EQ(outcome(), "The update feed is longer than 5 KiB.");
}

TEST_F(FeedDownloadTest, ALongFeedThatDoesNotSayItsLengthIsRefused)
{
    request.longest = 5120;
    server.respond("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + QByteArray(5'000'000, 'f'));
    EXPECT_EQ(outcome(), "The update feed is longer than 5 KiB.");
}

TEST_F(FeedDownloadTest, RedirectsAreFollowed)
{
    server.redirect("/b");
    server.redirect(server.address("/c").toString(), "/b");
    server.serve("feed", "/c");
    EXPECT_EQ(outcome(), "received feed");
}

TEST_F(FeedDownloadTest, TooManyRedirectsAreRefused)
{
    QString from = "/feed";
    for (int i = 0; i < request.redirects + 2; ++i) {
        const QString to = QString("/%1").arg(i);
        server.redirect(to, from);
        from = to;
    }
    EXPECT_EQ(outcome(), "The update server redirects too often.");
    // A request whose connection the server has just closed may be sent once more.
    const QList<QByteArray> requests = server.requests();
    const QSet<QByteArray> different(requests.begin(), requests.end());
    EXPECT_EQ(different.size(), request.redirects + 1);
}

TEST_F(FeedDownloadTest, ARedirectAwayFromTlsIsRefused)
{
    for (const char *address : {"http://localhost/feed", "ftp://localhost/feed",
                                "file:///etc/hosts", "data:text/plain,feed"}) {
        server.redirect(address);
        EXPECT_EQ(outcome(), "The update server redirects to an address that is not secure.")
            << address;
    }
}

TEST_F(FeedDownloadTest, ASilentServerIsGivenUp)
{
    server.respond("");
    request.timeout = 200ms;
    EXPECT_EQ(outcome(), "The update server takes too long to answer.");
}

TEST_F(FeedDownloadTest, DestroyingItEndsTheTransfer)
{
    server.respond("");
    {
        FeedDownload download(request);
        QObject::connect(&download, &FeedDownload::failed,
                         [](const QString &sentence) { ADD_FAILURE() << sentence.toStdString(); });
        download.start();
        until([&] { return !server.requests().isEmpty(); });
    }
    QCoreApplication::processEvents();
}

} // namespace velvane
