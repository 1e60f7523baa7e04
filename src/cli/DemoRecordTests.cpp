#include "cli/DemoRecord.h"

#include "base/KeyCode.h"
#include "model/DemoDocument.h"
#include "model/KeptSession.h"
#include "model/ProjectFile.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/TemporaryHome.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>

namespace velvane::cli {

namespace {

class DemoRecordTest : public testing::Test {
protected:
    DemoRecordTest()
    {
        DemoDocument document;
        document.project().setCanvasSize({1920, 1080});
        write(document);
    }

    void write(const DemoDocument &document) const
    {
        EXPECT_FALSE(DemoDocument::write(document.snapshot(), path));
    }
    QList<Step> saved() const { return DemoDocument::read(path)->project().steps(); }
    QByteArray bytes() const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    void clickAt(Seconds time)
    {
        desktop.clock().at(time, [this] {
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseDown, .point = {640, 400}});
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseUp, .point = {640, 400}});
        });
    }
    void pressEscapeAt(Seconds time)
    {
        desktop.clock().at(time, [this] { desktop.press(KeyCode::escape); });
    }
    int record() { return recordDemo(path.toStdString(), desktop, console); }
    QString refused()
    {
        QString reason;
        try {
            record();
        } catch (const CommandError &error) {
            reason = error.what();
        }
        EXPECT_EQ(out.str(), "");
        return reason;
    }

    TemporaryHome home;
    QTemporaryDir folder;
    const QString path = folder.filePath("demo.velvane");
    SimulatedDesktop desktop;
    std::ostringstream out;
    std::ostringstream err;
    Console console{.out = out, .err = err};
};

} // namespace

TEST_F(DemoRecordTest, TheStepsAreAppendedAndTheDemoIsSaved)
{
    clickAt(3s);
    pressEscapeAt(4s);
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(out.str(), "Recorded 1 step.\n");
    EXPECT_EQ(err.str(), "");
    ASSERT_EQ(saved().size(), 2);
    EXPECT_EQ(saved()[0].kind, StepKind::switchApp);
    EXPECT_EQ(saved()[1].kind, StepKind::click);
}

TEST_F(DemoRecordTest, WithoutActionsTheDemoIsUntouchedAndItIsASuccess)
{
    const QByteArray before = bytes();
    pressEscapeAt(4s);
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(out.str(), "Recording stopped — no actions captured.\n");
    EXPECT_EQ(bytes(), before);
}

TEST_F(DemoRecordTest, ASignalEndsItAsEscapeDoes)
{
    clickAt(3s);
    desktop.clock().at(4s, [] { std::raise(SIGTERM); });
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(out.str(), "Recorded 1 step.\n");
}

TEST_F(DemoRecordTest, ATerminalThatClosesEndsItAsEscapeDoesHoweverOftenItTells)
{
    clickAt(3s);
    for (const Seconds time : {4s, 4.01s})
        desktop.clock().at(time, [] { std::raise(SIGHUP); });
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(out.str(), "Recorded 1 step.\n");
    EXPECT_EQ(saved().size(), 2);
    EXPECT_TRUE(KeptSession::left(KeptSession::standardFolder()).empty());
}

TEST_F(DemoRecordTest, ALargerScreenIsToldInOneLineAndTheCanvasKept)
{
    DemoDocument small;
    write(small);
    clickAt(3s);
    pressEscapeAt(4s);
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(err.str(), "The screen (1920 × 1080) is larger than the canvas (1280 × 800): what "
                         "lies beyond is recorded at the canvas's edge.\n");
    EXPECT_EQ(DemoDocument::read(path)->project().canvasSize(), QSizeF(1280, 800));
}

TEST_F(DemoRecordTest, WhatAnotherProgramSavedMeanwhileIsKept)
{
    clickAt(3s);
    desktop.clock().at(3.5s, [this] {
        DemoDocument other;
        Step wait;
        wait.kind = StepKind::wait;
        other.project().setSteps({wait, wait});
        write(other);
    });
    pressEscapeAt(4s);
    EXPECT_EQ(record(), 0);
    ASSERT_EQ(saved().size(), 3);
    EXPECT_EQ(saved()[1].kind, StepKind::wait);
    EXPECT_EQ(saved()[2].kind, StepKind::click);
}

TEST_F(DemoRecordTest, WhenTheDemoHasGoneTheStepsAreKeptBesideIt)
{
    const QString kept = folder.filePath("demo recorded 2.velvane");
    DemoDocument taken;
    EXPECT_FALSE(DemoDocument::write(taken.snapshot(), folder.filePath("demo recorded.velvane")));
    clickAt(3s);
    desktop.clock().at(3.5s, [this] { QFile::remove(path); });
    pressEscapeAt(4s);
    const QString reason = refused();
    EXPECT_TRUE(reason.startsWith(path)) << reason.toStdString();
    EXPECT_TRUE(reason.endsWith("; the recorded steps are in " + kept)) << reason.toStdString();
    const auto demo = DemoDocument::read(kept);
    ASSERT_EQ(demo->project().steps().size(), 2);
    EXPECT_EQ(demo->project().steps()[1].kind, StepKind::click);
    EXPECT_EQ(demo->project().canvasSize(), QSizeF(1920, 1080));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(DemoRecordTest, WhenTheDemoIsDamagedItStaysAndTheStepsAreKeptBesideIt)
{
    clickAt(3s);
    desktop.clock().at(3.5s, [this] {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("no demo");
    });
    pressEscapeAt(4s);
    const QString reason = refused();
    EXPECT_FALSE(reason.contains('\n'));
    EXPECT_EQ(bytes(), "no demo");
    EXPECT_EQ(
        DemoDocument::read(folder.filePath("demo recorded.velvane"))->project().steps().size(), 2);
}

TEST_F(DemoRecordTest, WhenItsFolderHasGoneTheStepsAreKeptInTheUsersOwn)
{
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", home.path().toUtf8() + "/state");
    clickAt(3s);
    desktop.clock().at(3.5s, [this] { folder.remove(); });
    pressEscapeAt(4s);
    const QString reason = refused();
    const QString kept = home.path() + "/state/velvane/recorded/demo recorded.velvane";
    EXPECT_TRUE(reason.endsWith(kept)) << reason.toStdString();
    EXPECT_EQ(DemoDocument::read(kept)->project().steps().size(), 2);
    before.isNull() ? qunsetenv("XDG_STATE_HOME") : qputenv("XDG_STATE_HOME", before);
}

TEST_F(DemoRecordTest, AMovieThatBreaksOffIsToldOnTheErrorOutput)
{
    desktop.clock().at(2.8s, [this] {
        QImage picture(320, 200, QImage::Format_RGB32);
        picture.fill(Qt::red);
        desktop.capture().show(picture);
    });
    clickAt(3s);
    desktop.clock().at(3.5s, [this] { desktop.capture().end("The display has gone."); });
    pressEscapeAt(4s);
    EXPECT_EQ(record(), 0);
    EXPECT_EQ(out.str(), "Recorded 1 step with screen recording.\n");
    EXPECT_EQ(err.str(), "Recording stopped: The display has gone.\n");
}

TEST_F(DemoRecordTest, WhatIsWithheldIsSaidAndNoPageOpens)
{
    const QByteArray before = bytes();
    desktop.permissions().setGranted(Permission::inputMonitoring, false);
    EXPECT_EQ(refused(), "Grant inputMonitoring.");
    desktop.permissions().setGranted(Permission::accessibility, false);
    EXPECT_EQ(refused(), "Grant accessibility.");
    EXPECT_TRUE(desktop.log().isEmpty());
    EXPECT_EQ(bytes(), before);
}

TEST_F(DemoRecordTest, WhatTheDesktopLacksIsRefused)
{
    desktop.tap().setMissing("No listening here.");
    EXPECT_EQ(refused(), "No listening here.");
}

TEST_F(DemoRecordTest, ADemoThatIsNoneIsRefusedBeforeAnythingHappens)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("no demo");
    file.close();
    EXPECT_TRUE(refused().startsWith(path));
    file.remove();
    EXPECT_TRUE(refused().startsWith(path));
    EXPECT_TRUE(desktop.log().isEmpty());
}

} // namespace velvane::cli
