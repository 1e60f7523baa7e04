#include "app/HelpPage.h"

#include "language/Languages.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

// A site on this machine, which gives every question the same answer, or none.
class Site {
public:
    explicit Site(const QByteArray &answer)
    {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, [this, answer] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, [this, socket, answer] {
                asked << socket->readAll();
                if (answer.isEmpty())
                    return;
                socket->write("HTTP/1.1 " + answer
                              + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
                socket->disconnectFromHost();
            });
        });
    }

    QUrl page() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/apps/velvane/docs.html")
                        .arg(m_server.serverPort()));
    }

    QByteArrayList asked;

private:
    QTcpServer m_server;
};

struct HelpPageTest : testing::Test {
    // Opens the help and waits until something was shown or could not be.
    QStringList opened(HelpPlaces places, Seconds patience = 10s)
    {
        HelpPage page(desktop.shell(), std::move(places), patience);
        bool failed = false;
        QObject::connect(&page, &HelpPage::failed, [&] { failed = true; });
        page.open();
        page.open(); // while the first is under way it changes nothing
        QElapsedTimer waited;
        waited.start();
        while (!failed && desktop.log().isEmpty() && waited.elapsed() < 20'000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        EXPECT_TRUE(failed || !desktop.log().isEmpty()) << "the help neither opened nor failed";
        return failed ? QStringList("failed") : desktop.log();
    }

    // The name of the page that is chosen among these.
    static QString pageIn(const QStringList &names, const QString &language)
    {
        const QTemporaryDir folder;
        for (const QString &name : names)
            EXPECT_TRUE(QFile(folder.filePath(name)).open(QFile::WriteOnly));
        return QFileInfo(HelpPlaces::pageIn(folder.path(), language)).fileName();
    }

    SimulatedDesktop desktop;
    const QString file = "/usr/share/velvane/help/docs.html";
    const QString local = "open file://" + file;
};

} // namespace

TEST_F(HelpPageTest, TheOnlinePageIsOpenedWhenItIsThere)
{
    const Site site("200 OK");
    EXPECT_EQ(opened({site.page(), file}), QStringList("open " + site.page().toString()));
    ASSERT_EQ(site.asked.size(), 1);
    EXPECT_TRUE(site.asked.first().startsWith("HEAD /apps/velvane/docs.html"));
}

TEST_F(HelpPageTest, TheInstalledPageStandsInForOneThatIsNotThere)
{
    const Site site("404 Not Found");
    EXPECT_EQ(opened({site.page(), file}), QStringList(local));
}

TEST_F(HelpPageTest, TheInstalledPageStandsInForASiteThatCannotBeReached)
{
    QUrl closed;
    {
        const Site site("200 OK");
        closed = site.page();
    }
    EXPECT_EQ(opened({closed, file}), QStringList(local));
}

TEST_F(HelpPageTest, ASiteThatDoesNotAnswerIsNotWaitedForLong)
{
    const Site site("");
    EXPECT_EQ(opened({site.page(), file}, 0.1s), QStringList(local));
}

TEST_F(HelpPageTest, WithoutAnInstalledPageTheBrowserMayTry)
{
    const Site site("503 Service Unavailable");
    EXPECT_EQ(opened({site.page(), {}}), QStringList("open " + site.page().toString()));
}

TEST_F(HelpPageTest, WhatNothingShowsIsTold)
{
    const Site site("200 OK");
    desktop.shell().setMissing("nothing opens addresses");
    EXPECT_EQ(opened({site.page(), file}), QStringList("failed"));
}

TEST_F(HelpPageTest, TheInstalledPageIsInTheProgramsLanguage)
{
    EXPECT_EQ(pageIn({"docs.html", "docs.de.html", "docs.zh_CN.html"}, "de"), "docs.de.html");
    EXPECT_EQ(pageIn({"docs.html", "docs.de.html", "docs.zh_CN.html"}, "zh_CN"), "docs.zh_CN.html");
    EXPECT_EQ(pageIn({"docs.html", "docs.de.html", "docs.zh_CN.html"}, "en"), "docs.html");
}

TEST_F(HelpPageTest, ALanguageWithoutItsRegionComesBeforeEnglish)
{
    EXPECT_EQ(pageIn({"docs.html", "docs.pt.html", "docs.pt_BR.html"}, "pt_BR"), "docs.pt_BR.html");
    EXPECT_EQ(pageIn({"docs.html", "docs.pt.html"}, "pt_BR"), "docs.pt.html");
    EXPECT_EQ(pageIn({"docs.html", "docs.pt_PT.html"}, "pt_BR"), "docs.html");
}

TEST_F(HelpPageTest, TheInstalledPageIsEnglishWhereThatIsAllThereIs)
{
    EXPECT_EQ(pageIn({"docs.html"}, "de"), "docs.html");
    EXPECT_EQ(pageIn({"docs.de.html"}, "fr"), "");
    EXPECT_EQ(pageIn({}, "en"), "");
}

TEST_F(HelpPageTest, APageIsFoundThroughALink)
{
    const QTemporaryDir source;
    const QTemporaryDir build;
    ASSERT_TRUE(QFile(source.filePath("docs.html")).open(QFile::WriteOnly));
    ASSERT_TRUE(QFile::link(source.filePath("docs.html"), build.filePath("docs.html")));
    EXPECT_EQ(HelpPlaces::pageIn(build.path(), "ja"),
              QFileInfo(source.filePath("docs.html")).canonicalFilePath());
}

TEST_F(HelpPageTest, TheOnlinePageIsTheSameInAllLanguages)
{
    const QUrl english = HelpPlaces::usual().online;
    Languages::choose("de");
    EXPECT_EQ(HelpPlaces::usual().online, english);
    Languages::choose("en");
}

TEST_F(HelpPageTest, TheEnvironmentMayNameAnotherSite)
{
    qputenv("VELVANE_SITE", "http://127.0.0.1:9");
    EXPECT_EQ(HelpPlaces::usual().online, QUrl("http://127.0.0.1:9/apps/velvane/docs.html"));
    qunsetenv("VELVANE_SITE");
    EXPECT_EQ(HelpPlaces::usual().online.scheme(), "https");
    EXPECT_EQ(HelpPlaces::usual().online.path(), "/apps/velvane/docs.html");
}

} // namespace velvane
