#include "update/Appcast.h"

#include "support/FeedRecords.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

Appcast read(const QByteArray &xml)
{
    const auto result = Appcast::parse(xml);
    if (const auto *error = std::get_if<UpdateError>(&result))
        ADD_FAILURE() << error->sentence.toStdString();
    const auto *feed = std::get_if<Appcast>(&result);
    return feed ? *feed : Appcast();
}

QString refusal(const QByteArray &xml)
{
    const auto result = Appcast::parse(xml);
    const auto *error = std::get_if<UpdateError>(&result);
    return error ? error->sentence : QStringLiteral("nothing was refused");
}

QByteArray replaced(QByteArray text, const QByteArray &from, const QByteArray &to)
{
    EXPECT_TRUE(text.contains(from)) << from.toStdString();
    return text.replace(from, to);
}

} // namespace

TEST(Appcast, ReadsWhatAFeedOffers)
{
    const Appcast feed = read(feedOf(itemOf("0.2.0") + itemOf("0.10.0") + itemOf("0.9.0")));
    EXPECT_EQ(feed.date, QDateTime({2026, 11, 21}, {12, 0}, Qt::UTC));
    ASSERT_EQ(feed.releases.size(), 3);
    ASSERT_TRUE(feed.newest());
    EXPECT_EQ(feed.newest()->version.text(), "0.10.0");
    EXPECT_EQ(feed.newest()->name, "0.10.0");
    EXPECT_EQ(feed.newest()->page, QUrl("https://velvane.example/download"));
}

TEST(Appcast, AFeedMayOfferNothing)
{
    EXPECT_FALSE(read(feedOf("")).newest());
}

TEST(Appcast, AnItemMayHaveAPageAndANameOfItsOwn)
{
    const Appcast feed =
        read(feedOf(replaced(itemOf("1.0"), "<pubDate>",
                             "<sparkle:shortVersionString>1.0 Beta</sparkle:shortVersionString>"
                             "<link>https://velvane.example/1.0</link><pubDate>")));
    EXPECT_EQ(feed.newest()->name, "1.0 Beta");
    EXPECT_EQ(feed.newest()->page, QUrl("https://velvane.example/1.0"));
}

TEST(Appcast, ANameThatIsNoPlainTextIsNotShown)
{
    const Appcast feed = read(feedOf(replaced(
        itemOf("1.0"), "<pubDate>",
        "<sparkle:shortVersionString>&lt;b&gt;1&lt;/b&gt;</sparkle:shortVersionString><pubDate>")));
    EXPECT_EQ(feed.newest()->name, "1.0");
}

TEST(Appcast, TheVersionMayStandInTheEnclosure)
{
    const QByteArray item =
        replaced(replaced(itemOf("1.0"), "<sparkle:version>1.0</sparkle:version>", ""),
                 "<enclosure ", R"(<enclosure sparkle:version="1.1" )");
    EXPECT_EQ(read(feedOf(item)).newest()->version.text(), "1.1");
}

TEST(Appcast, OtherSystemsAndChannelsArePassedOver)
{
    const QByteArray windows =
        replaced(itemOf("9.0"), "<enclosure ", R"(<enclosure sparkle:os="windows" )");
    const QByteArray linux =
        replaced(itemOf("2.0"), "<enclosure ", R"(<enclosure sparkle:os="linux" )");
    const QByteArray beta =
        replaced(itemOf("8.0"), "<pubDate>", "<sparkle:channel>beta</sparkle:channel><pubDate>");
    EXPECT_EQ(read(feedOf(windows + linux + beta)).newest()->version.text(), "2.0");
}

TEST(Appcast, DatesMayNameGreenwichOrAnotherZone)
{
    const QDateTime noon({2026, 11, 21}, {12, 0}, Qt::UTC);
    EXPECT_EQ(read(feedOf("", "Sat, 21 Nov 2026 12:00:00 GMT")).date, noon);
    EXPECT_EQ(read(feedOf("", "Sat, 21 Nov 2026 14:30:00 +0230")).date, noon);
}

TEST(Appcast, EveryFieldIsNeeded)
{
    const auto without = [](const char *field) {
        return QStringLiteral("The update feed has no valid “%1”.").arg(QLatin1String(field));
    };
    const QByteArray item = itemOf("1.0");
    const auto itemWith = [&](const QByteArray &from, const QByteArray &to) {
        return refusal(feedOf(replaced(item, from, to)));
    };
    EXPECT_EQ(itemWith("<sparkle:version>1.0<", "<sparkle:version><"), without("sparkle:version"));
    EXPECT_EQ(itemWith("<sparkle:version>1.0<", "<sparkle:version>new<"),
              without("sparkle:version"));
    EXPECT_EQ(itemWith("<enclosure ", "<enclosed "), without("enclosure"));
    EXPECT_EQ(itemWith(" url=", " no-url="), without("url"));
    EXPECT_EQ(itemWith("https://velvane", "http://velvane"), without("url"));
    EXPECT_EQ(itemWith("4711", "0"), without("length"));
    EXPECT_EQ(itemWith("4711", "-1"), without("length"));
    EXPECT_EQ(itemWith("sparkle:edSignature", "sparkle:dsaSignature"),
              without("sparkle:edSignature"));
    EXPECT_EQ(itemWith("edSignature=\"", "edSignature=\"!"), without("sparkle:edSignature"));
    EXPECT_EQ(refusal(feedOf("", "yesterday")), without("lastBuildDate"));
    for (const char *page : {"http://velvane.example", "javascript:alert(1)", "file:///bin/sh",
                             "https://", "/download", ""})
        EXPECT_EQ(refusal(replaced(feedOf(item), "https://velvane.example/download", page)),
                  without("link"))
            << page;
}

TEST(Appcast, WhatIsNotWellFormedIsRefused)
{
    const QString malformed = "The update feed is malformed.";
    const QByteArray whole = feedOf(itemOf("1.0"));
    EXPECT_EQ(refusal(""), malformed);
    EXPECT_EQ(refusal("not even XML"), malformed);
    EXPECT_EQ(refusal("<html/>"), malformed);
    EXPECT_EQ(refusal(R"(<rss version="2.0"/>)"), malformed);
    EXPECT_EQ(refusal(whole + "<rss/>"), malformed);
    EXPECT_EQ(refusal(replaced(whole, "</channel>", "</canal>")), malformed);
    EXPECT_EQ(refusal(replaced(whole, "<title>Velvane<", "<title>&velvane;<")), malformed);
    EXPECT_EQ(refusal(replaced(whole, "<sparkle:version>", "<sparkle:version><b/>")), malformed);
    const qsizetype end = whole.lastIndexOf('>');
    for (qsizetype length = 0; length < end; length += 7)
        EXPECT_EQ(refusal(whole.first(length)), malformed) << length;
}

TEST(Appcast, DocumentTypesAreRefused)
{
    EXPECT_EQ(refusal(replaced(feedOf(itemOf("1.0")), "<rss ",
                               R"(<!DOCTYPE rss [<!ENTITY a "aaaa">]><rss )")),
              "The update feed is malformed.");
}

} // namespace velvane
