#include "cli/DemoRun.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/TemporaryHome.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sstream>

namespace velvane::cli {

namespace {

class DemoRunTest : public testing::Test {
protected:
    DemoRunTest()
    {
        run.options.countdown = false;
        Step section;
        section.kind = StepKind::section;
        Step move;
        move.point = {100, 200};
        move.duration = 0s;
        Step click;
        click.kind = StepKind::click;
        click.pauseAfter = 5s;
        demo.project().setSteps({section, move, click});
    }

    int perform() { return runDemo(demo, desktop, run, console); }
    QString refused()
    {
        QString reason;
        try {
            perform();
        } catch (const CommandError &error) {
            reason = error.what();
        }
        EXPECT_TRUE(desktop.posted().empty());
        EXPECT_EQ(out.str(), "");
        return reason;
    }

    SimulatedDesktop desktop;
    DemoDocument demo;
    DemoRun run;
    std::ostringstream out;
    std::ostringstream err;
    Console console{.out = out, .err = err};
};

} // namespace

TEST_F(DemoRunTest, AFinishedRunSaysSoAndIsASuccess)
{
    EXPECT_EQ(perform(), 0);
    EXPECT_EQ(out.str(), "Live run finished.\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(desktop.posted().size(), 5U);
}

TEST_F(DemoRunTest, AStoppedRunSaysSoAndIsAFailure)
{
    desktop.clock().at(1s, [this] { desktop.press(KeyCode::escape); });
    EXPECT_EQ(perform(), 1);
    EXPECT_EQ(out.str(), "Live run stopped.\n");
}

TEST_F(DemoRunTest, TheCountdownGoesToStandardError)
{
    run.options.countdown = true;
    EXPECT_EQ(perform(), 0);
    EXPECT_EQ(err.str(), "3… 2… 1… \n");
}

TEST_F(DemoRunTest, ItBeginsWithTheStepOfANumber)
{
    run.from = "2";
    EXPECT_EQ(perform(), 0);
    EXPECT_EQ(desktop.log().filter("Mouse"),
              QStringList({"leftMouseDown 100,200", "leftMouseUp 100,200"}));
}

TEST_F(DemoRunTest, ItBeginsWithTheStepOfAnId)
{
    run.from = demo.project().steps()[2].id.toString(QUuid::WithoutBraces).toUpper();
    EXPECT_EQ(perform(), 0);
    EXPECT_EQ(desktop.posted().size(), 3U);
}

TEST_F(DemoRunTest, AStepThatDoesNotExistIsRefused)
{
    for (const char *step : {"3", "0", "-1", "1.5", "x", "99999999999999999999"}) {
        run.from = step;
        EXPECT_EQ(refused(), QString("there is no step “%1”").arg(step));
    }
    run.from = QUuid::createUuid().toString();
    EXPECT_TRUE(refused().startsWith("there is no step “{"));
}

TEST_F(DemoRunTest, WithoutStepsItIsRefused)
{
    demo.project().setSteps({});
    EXPECT_EQ(refused(), "Add some steps first.");
}

TEST_F(DemoRunTest, WithoutPermissionItSaysWhatIsWithheldAndOpensNothing)
{
    desktop.permissions().setGranted(Permission::accessibility, false);
    EXPECT_EQ(refused(), "Grant accessibility.");
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(DemoRunTest, WhatTheDesktopLacksIsRefused)
{
    desktop.input().setMissing("No input here.");
    EXPECT_EQ(refused(), "No input here.");
}

TEST_F(DemoRunTest, ARecordingThatCannotBeMadeIsToldAndTheDemoRuns)
{
    const TemporaryHome home;
    desktop.capture().failWith("No capture today.");
    run.options.recordMode = RecordMode::window;
    EXPECT_EQ(perform(), 0);
    EXPECT_EQ(err.str(), "Couldn't start recording: No capture today.\n");
    EXPECT_EQ(out.str(), "Live run finished.\n");
}

TEST_F(DemoRunTest, BelowTheOutcomeOfARecordedRunStandsThePathOfTheMovie)
{
    const TemporaryHome home;
    run.options.recordMode = RecordMode::screen;
    run.options.recordCursor = false;
    QImage picture(1920, 1080, QImage::Format_RGB32);
    picture.fill(Qt::red);
    desktop.clock().at(1s, [&] { desktop.capture().show(picture); });
    EXPECT_EQ(perform(), 0);
    const QDir folder(home.path() + "/Movies/Velvane");
    const QStringList movies = folder.entryList(QDir::Files);
    ASSERT_EQ(movies.size(), 1);
    EXPECT_EQ(QString::fromStdString(out.str()),
              QString("Recording saved to %1 — revealed in Finder.\n%2\n")
                  .arg(movies[0], folder.filePath(movies[0])));
    EXPECT_FALSE(desktop.capture().requests().back().showsCursor);
}

TEST_F(DemoRunTest, OthersAreHiddenOnlyWhenAsked)
{
    AppInfo app;
    app.name = "Mail";
    desktop.apps().run(app);
    Step toNotes;
    toNotes.kind = StepKind::switchApp;
    toNotes.text = "Notes";
    demo.project().setSteps({toNotes});
    EXPECT_EQ(perform(), 0);
    EXPECT_FALSE(desktop.log().contains("hide Mail"));
    run.options.hideOthers = true;
    EXPECT_EQ(perform(), 0);
    EXPECT_TRUE(desktop.log().contains("hide Mail"));
}

} // namespace velvane::cli
