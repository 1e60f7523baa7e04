#include "update/FeedReading.h"

#include "support/FeedRecords.h"
#include "support/Print.h"
#include "update/FeedSignature.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QString unsignedFeed = QStringLiteral("The update feed is not signed.");
const QString wrongSignature = QStringLiteral("The signature of the update feed is wrong.");

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// What a program prints; fails the test when it fails.
QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

struct FeedReading : testing::Test {
    QString outcome(const QByteArray &feed) const
    {
        const auto result = readFeed(feed, trust);
        if (const auto *error = std::get_if<UpdateError>(&result))
            return error->sentence;
        return std::get<Appcast>(result).newest()->name;
    }

    FeedSigner signer;
    FeedTrust trust{.publicKey = signer.publicKey(), .seen = {}};
    QByteArray content = feedOf(itemOf("0.2.0"));
};

} // namespace

TEST_F(FeedReading, ASignedFeedIsRead)
{
    EXPECT_EQ(outcome(signer.signedFeed(content)), "0.2.0");
    EXPECT_EQ(outcome(signer.signedFeed(content) + "\n \r\n"), "0.2.0");
}

TEST_F(FeedReading, AnUnsignedFeedIsRefused)
{
    EXPECT_EQ(outcome(content), unsignedFeed);
    EXPECT_EQ(outcome(""), unsignedFeed);
    EXPECT_EQ(outcome("<!-- sparkle-signatures:"), unsignedFeed);
    EXPECT_EQ(outcome("--><!-- sparkle-signatures:"), unsignedFeed);
}

TEST_F(FeedReading, ACommentThatDoesNotFitTheFeedIsNoSignature)
{
    const QByteArray whole = signer.signedFeed(content);
    const QByteArray length = "length: " + QByteArray::number(content.size());
    EXPECT_EQ(outcome(QByteArray(whole).replace(length, QByteArray(length + "1"))), unsignedFeed);
    EXPECT_EQ(outcome(QByteArray(whole).replace(length, "")), unsignedFeed);
    EXPECT_EQ(outcome(QByteArray(whole).replace("edSignature: ", "edSignature: !")), unsignedFeed);
    EXPECT_EQ(outcome(QByteArray(whole).replace("edSignature: ", "edSignature: AAAA")),
              unsignedFeed);
    EXPECT_EQ(outcome(whole + "<!-- more -->"), unsignedFeed);
    EXPECT_EQ(outcome(whole + "more"), unsignedFeed);
}

TEST_F(FeedReading, EverySignedByteCounts)
{
    const QByteArray whole = signer.signedFeed(content);
    for (qsizetype i = 0; i < content.size(); ++i) {
        QByteArray changed = whole;
        changed[i] = char(changed[i] ^ 1);
        ASSERT_EQ(outcome(changed), wrongSignature) << i;
    }
}

TEST_F(FeedReading, AnotherKeysSignatureIsWrong)
{
    EXPECT_EQ(outcome(FeedSigner().signedFeed(content)), wrongSignature);
    trust.publicKey.chop(1);
    EXPECT_EQ(outcome(signer.signedFeed(content)), wrongSignature);
    trust.publicKey.clear();
    EXPECT_EQ(outcome(signer.signedFeed(content)), wrongSignature);
}

TEST_F(FeedReading, ASignedFeedMayStillBeMalformed)
{
    EXPECT_EQ(outcome(signer.signedFeed("<rss>")), "The update feed is malformed.");
}

TEST_F(FeedReading, AFeedOlderThanTheLastIsRefused)
{
    trust.seen = QDateTime({2026, 11, 21}, {12, 0, 1}, Qt::UTC);
    EXPECT_EQ(outcome(signer.signedFeed(content)),
              "The update feed is older than one that was read before.");
    trust.seen = trust.seen.addSecs(-1);
    EXPECT_EQ(outcome(signer.signedFeed(content)), "0.2.0");
}

// What the makers sign with is what this reads.
TEST(FeedSignature, TheSigningScriptSignsFeeds)
{
    const QTemporaryDir folder;
    const QString key = folder.filePath("key.pem");
    const QString path = folder.filePath("feed.xml");
    const QString script = qEnvironmentVariable("VELVANE_SOURCE") + "/scripts/sign-appcast";
    output("openssl", {"genpkey", "-algorithm", "ed25519", "-out", key});
    const FeedTrust trust{QByteArray::fromBase64(output(script, {key}).trimmed()), {}};
    write(path, feedOf(itemOf("0.2.0")));
    for (int time = 1; time <= 2; ++time) {
        output(script, {key, path});
        const auto read = readFeed(bytesOf(path), trust);
        ASSERT_TRUE(std::holds_alternative<Appcast>(read)) << "signed for the time " << time;
        EXPECT_EQ(std::get<Appcast>(read).newest()->name, "0.2.0");
        EXPECT_EQ(bytesOf(path).count("sparkle-signatures"), 1);
    }
}

// RFC 8032, 7.1, test 3.
TEST(FeedSignature, AgreesWithThePublishedExample)
{
    const QByteArray key =
        QByteArray::fromHex("fc51cd8e6218a1a38da47ed00230f0580816ed13ba3303ac5deb911548908025");
    const QByteArray signature =
        QByteArray::fromHex("6291d657deec24024827e69c3abe01a30ce548a284743a445e3680d7db5ac3ac"
                            "18ff9b538d16f290ae67f760984dc6594a7c15e9716ed28dc027beceea1ec40a");
    EXPECT_TRUE(FeedSignature::isValid({QByteArray("\xaf\x82"), signature}, key));
    EXPECT_FALSE(FeedSignature::isValid({QByteArray("\xaf\x83"), signature}, key));
}

} // namespace velvane
