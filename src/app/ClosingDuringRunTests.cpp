#include "app/AppDelegate.h"
#include "app/Autosave.h"
#include "app/DocumentsFixture.h"

#include <QEventLoop>
#include <QPointer>

namespace velvane {

namespace {

struct ClosingDuringRun : DocumentsFixture {
    ClosingDuringRun()
    {
        window = documents.open(demo("tour.velvane"), nullptr);
        Step wait;
        wait.kind = StepKind::wait;
        wait.pauseAfter = 3600s;
        project(window).setSteps({wait});
        window->saveThen([](bool) {});
        run().runLive();
    }
    ~ClosingDuringRun() override { documents.disconnect(); }

    LiveRunController &run() { return window->content().liveRun(); }
    /// Lets the run end and the window go on with its close.
    void waitForTheEnd()
    {
        QEventLoop loop;
        QObject::connect(&run(), &LiveRunController::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        loop.exec();
        settle();
    }

    QPointer<EditorWindow> window;
};

} // namespace

TEST_F(ClosingDuringRun, TheRunStopsBeforeTheWindowGoes)
{
    ASSERT_TRUE(run().isBusy());
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(run().liveCancel());
    ASSERT_TRUE(window);
    waitForTheEnd();
    EXPECT_FALSE(window);
    EXPECT_TRUE(desktop.posted().empty());
}

TEST_F(ClosingDuringRun, QuittingStopsTheRunBeforeItAsksWhetherToSave)
{
    edit(window);
    bool quit = false;
    QObject::connect(&documents, &Documents::quitReady, [&] { quit = true; });
    documents.quit();
    EXPECT_TRUE(run().liveCancel());
    EXPECT_FALSE(question(window));
    waitForTheEnd();
    ASSERT_TRUE(window);
    answer(window, "Don't Save");
    EXPECT_FALSE(window);
    EXPECT_TRUE(quit);
}

TEST_F(ClosingDuringRun, QuittingWaitsForTheEndOfTheRun)
{
    bool quit = false;
    QObject::connect(&documents, &Documents::quitReady, [&] { quit = true; });
    documents.quit();
    EXPECT_FALSE(quit);
    waitForTheEnd();
    EXPECT_TRUE(quit);
}

TEST_F(ClosingDuringRun, ToldToEndItKeepsWhatCameUntilTheEndOfTheRunToo)
{
    edit(window);
    qsizetype steps = 0;
    {
        Autosave autosave(documents, file("kept"));
        AppDelegate delegate(documents, autosave);
        bool ended = false;
        QObject::connect(&delegate, &AppDelegate::terminated, [&] { ended = true; });
        delegate.end();
        EXPECT_FALSE(ended);
        edit(window);
        steps = project(window).steps().size();
        waitForTheEnd();
        EXPECT_FALSE(window);
        EXPECT_TRUE(ended);
    }
    const auto left = KeptSession::left(file("kept"));
    ASSERT_EQ(left.size(), 1U);
    const QList<KeptDemo> demos = left[0]->demos();
    ASSERT_EQ(demos.size(), 1);
    ASSERT_TRUE(demos[0].demo);
    EXPECT_EQ(demos[0].demo->steps.size(), steps);
}

} // namespace velvane
