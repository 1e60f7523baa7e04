#include "app/UpdaterCommands.h"

#include "app/DocumentsFixture.h"
#include "app/UpdaterController.h"
#include "support/FeedRecords.h"
#include "support/FeedServer.h"
#include "support/MenuReader.h"
#include "support/Until.h"

#include <QMenu>

namespace velvane {

namespace {

struct UpdaterCommandsTest : DocumentsFixture {
    UpdaterCommandsTest() { server.serve(signer.signedFeed(feedOf(itemOf("99.0")))); }

    UpdateSource source() const
    {
        UpdateSource result;
        result.feed = {.address = server.address(), .tls = server.trusting()};
        result.publicKey = signer.publicKey();
        result.version = "0.1.0";
        return result;
    }
    void check()
    {
        MenuReader(menu).item("Check for Updates…").trigger();
        EXPECT_EQ(status(window), "Checking for updates…");
        until([&] { return question(window) != nullptr; });
    }

    FeedServer server;
    FeedSigner signer;
    EditorWindow *window = documents.newDemo();
    QMenu menu;
};

} // namespace

TEST_F(UpdaterCommandsTest, ANewerVersionsPageIsOpenedOnlyWhenAskedFor)
{
    UpdaterController updater(source(), stored);
    UpdaterCommands::addTo(menu, *window, updater);
    check();
    EXPECT_EQ(questionText(window), "Velvane 99.0 is available.");
    EXPECT_EQ(status(window), "");
    answer(window, "Not Now");
    EXPECT_TRUE(desktop.log().isEmpty());
    check();
    answer(window, "Open Download Page");
    EXPECT_EQ(desktop.log(), QStringList{"open https://velvane.example/download"});
}

TEST_F(UpdaterCommandsTest, AFailureIsAMessage)
{
    UpdaterController updater(source(), stored);
    UpdaterCommands::addTo(menu, *window, updater);
    server.serve("nothing signed");
    check();
    EXPECT_EQ(questionText(window), "The update feed is not signed.");
    answer(window, "OK");
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(UpdaterCommandsTest, OnlyTheWindowThatAskedIsAnswered)
{
    UpdaterController updater(source(), stored);
    EditorWindow *other = documents.newDemo();
    QMenu otherMenu;
    UpdaterCommands::addTo(menu, *window, updater);
    UpdaterCommands::addTo(otherMenu, *other, updater);
    check();
    EXPECT_FALSE(question(other));
}

TEST_F(UpdaterCommandsTest, WhatALookByItselfFindsStandsInTheStatusLine)
{
    UpdaterController updater(source(), stored);
    UpdaterCommands::addTo(menu, *window, updater);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    updater.tick(now.addDays(-1));
    updater.tick(now);
    until([&] { return !status(window).isEmpty(); });
    EXPECT_EQ(status(window),
              "Velvane 99.0 is available: see “Check for Updates…” in the menu “Help”.");
    EXPECT_FALSE(question(window));
}

TEST_F(UpdaterCommandsTest, LookingByItselfCanBeTurnedOff)
{
    UpdaterController updater(source(), stored);
    UpdaterCommands::addTo(menu, *window, updater);
    Q_EMIT menu.aboutToShow();
    QAction &automatic = MenuReader(menu).item("Check for Updates Automatically");
    EXPECT_TRUE(automatic.isVisible());
    EXPECT_TRUE(automatic.isChecked());
    automatic.trigger();
    EXPECT_FALSE(updater.isAutomatic());
    updater.setAutomatic(true);
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(automatic.isChecked());
}

TEST_F(UpdaterCommandsTest, WhereThePackageManagerBringsUpdatesNoChoiceIsOffered)
{
    UpdateSource owned = source();
    bool asked = false;
    owned.owner = std::async(std::launch::deferred, [&asked] {
        asked = true;
        return PackageOwner::Owner::packageManager;
    });
    UpdaterController updater(owned, stored);
    updater.start();
    UpdaterCommands::addTo(menu, *window, updater);
    EXPECT_FALSE(asked) << "no window waits for the answer";
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(asked);
    EXPECT_EQ(MenuReader(menu).texts(), QStringList{"Check for Updates…"});
}

} // namespace velvane
