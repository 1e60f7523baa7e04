#include "capture/Bookmark.h"
#include "live/LiveRunFixture.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUndoStack>

namespace velvane {

namespace {

struct LiveRunRecording : LiveRunFixture {
    LiveRunRecording()
    {
        options.recordMode = RecordMode::screen;
        project.setSteps({stepOf(StepKind::wait, 2s)});
        picture.fill(Qt::red);
        showAt(2.5s);
    }

    void showAt(Seconds time)
    {
        desktop.clock().at(time, [this] { desktop.capture().show(picture); });
    }
    static Step switchTo(const QString &app)
    {
        Step step = stepOf(StepKind::switchApp);
        step.text = app;
        return step;
    }
    void addWindow(const QString &app)
    {
        WindowInfo window;
        window.owner.name = app;
        window.frame = QRectF(100, 100, 641, 480);
        desktop.windows().add(window);
    }
    QString movieName() const { return QFileInfo(controller.recordingPath()).fileName(); }
    bool isWindowRecorded()
    {
        return desktop.capture().requests().back().region == QRectF(100, 100, 641, 480);
    }

    TemporaryHome home;
    QImage picture{1920, 1080, QImage::Format_RGB32};
};

} // namespace

TEST_F(LiveRunRecording, TheMovieIsShownAndBecomesTheDemosRecording)
{
    QUndoStack undo;
    project.setUndoManager(&undo);
    run();
    const QString path = controller.recordingPath();
    ASSERT_TRUE(QFileInfo::exists(path));
    EXPECT_TRUE(path.startsWith(home.path() + "/Movies/Velvane/run-"));
    EXPECT_EQ(reported,
              QStringList("Recording saved to " + movieName() + " — revealed in Finder."));
    EXPECT_EQ(desktop.log().mid(2), QStringList("reveal " + path)) << "we do not come in front";
    ASSERT_TRUE(project.recordingBookmark());
    EXPECT_EQ(Bookmark::resolve(*project.recordingBookmark()), path);
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::finished);
}

TEST_F(LiveRunRecording, WhereWeWereHiddenWeComeBackBehindItsMovie)
{
    options.hideOthers = true;
    project.setSteps({switchTo("Notes"), stepOf(StepKind::wait, 2s)});
    run();
    EXPECT_EQ(desktop.log().mid(2), QStringList({"hide ourselves", "unhide ourselves",
                                                 "reveal " + controller.recordingPath()}));
    EXPECT_FALSE(desktop.shell().active());
}

TEST_F(LiveRunRecording, ItBeginsAfterTheCountdownWithThePixelsOfTheDisplayAndThePointerAsChosen)
{
    int atTheLastNumber = -1;
    desktop.clock().at(2.3s, [&] { atTheLastNumber = int(desktop.capture().requests().size()); });
    options.recordCursor = false;
    run();
    EXPECT_EQ(atTheLastNumber, 0);
    ASSERT_EQ(desktop.capture().requests().size(), 1U);
    EXPECT_FALSE(desktop.capture().requests()[0].showsCursor);
    EXPECT_EQ(desktop.capture().streams(), 0);
}

TEST_F(LiveRunRecording, WhenItIsOffNothingIsCaptured)
{
    options.recordMode = RecordMode::off;
    run();
    EXPECT_TRUE(desktop.capture().requests().empty());
    EXPECT_EQ(reported, QStringList("Live run finished."));
    EXPECT_FALSE(project.recordingBookmark());
}

TEST_F(LiveRunRecording, TheWindowOfTheOneApplicationIsRecorded)
{
    addWindow("Notes");
    options.recordMode = RecordMode::window;
    project.setSteps({switchTo("Notes"), switchTo(" Notes "), stepOf(StepKind::wait, 1s)});
    run();
    EXPECT_TRUE(isWindowRecorded());
    EXPECT_EQ(reported,
              QStringList("Recording saved to " + movieName() + " — revealed in Finder."));
}

TEST_F(LiveRunRecording, WithoutTheWindowTheScreenIsRecordedAndThatIsTold)
{
    addWindow("Notes");
    options.recordMode = RecordMode::window;
    for (const QList<Step> &steps :
         {QList<Step>{switchTo("Mail")}, QList<Step>{stepOf(StepKind::click)}}) {
        project.setSteps(steps + QList<Step>{stepOf(StepKind::wait, 1s)});
        reported.clear();
        showAt(desktop.clock().now() + 2.6s);
        run();
        EXPECT_FALSE(isWindowRecorded());
        EXPECT_EQ(reported, QStringList("Recording saved to " + movieName()
                                        + " (window not found — recorded full screen)"
                                          " — revealed in Finder."));
        QFile::remove(controller.recordingPath());
    }
}

TEST_F(LiveRunRecording, ADemoOfSeveralApplicationsIsRecordedWhole)
{
    addWindow("Notes");
    options.recordMode = RecordMode::window;
    project.setSteps({switchTo("Notes"), switchTo("Mail"), stepOf(StepKind::wait, 1s)});
    run();
    EXPECT_FALSE(isWindowRecorded());
    EXPECT_EQ(reported,
              QStringList("Recording saved to " + movieName() + " — revealed in Finder."));
}

TEST_F(LiveRunRecording, OfADemoOfSeveralApplicationsAPartWithOneIsRecordedWholeToo)
{
    addWindow("Notes");
    options.recordMode = RecordMode::window;
    project.setSteps({switchTo("Mail"), switchTo("Notes"), stepOf(StepKind::wait, 1s)});
    run(project.steps()[1].id);
    ASSERT_EQ(desktop.capture().requests().size(), 1U);
    EXPECT_FALSE(isWindowRecorded());
}

TEST_F(LiveRunRecording, ARecordingThatCannotBeMadeDoesNotKeepTheDemoFromRunning)
{
    desktop.capture().failWith("No capture today.");
    run();
    EXPECT_EQ(reported,
              QStringList({"Couldn't start recording: No capture today.", "Live run finished."}));
    EXPECT_EQ(controller.recordingPath(), "");
    EXPECT_TRUE(desktop.shell().active());
    EXPECT_TRUE(QDir(Bookmark::recordingsFolder()).isEmpty());
}

TEST_F(LiveRunRecording, CancelledInTheCountdownNoRecordingIsMade)
{
    pressEscapeAt(1s);
    run();
    EXPECT_EQ(reported, QStringList("Live run stopped."));
    EXPECT_TRUE(desktop.capture().requests().empty());
    EXPECT_FALSE(QDir(Bookmark::recordingsFolder()).exists());
}

TEST_F(LiveRunRecording, AStoppedRunKeepsItsMovie)
{
    pressEscapeAt(3s);
    run();
    EXPECT_EQ(reported,
              QStringList("Recording saved to " + movieName() + " — revealed in Finder."));
    EXPECT_EQ(controller.outcome(), LiveRunController::Outcome::stopped);
    EXPECT_TRUE(project.recordingBookmark());
}

TEST_F(LiveRunRecording, ARecordingThatEndsByItselfIsToldAndWhatItHasIsKept)
{
    desktop.clock().at(3s, [this] { desktop.capture().end("The X server has gone."); });
    run();
    EXPECT_EQ(reported,
              QStringList({"Recording stopped: The X server has gone.",
                           "Recording saved to " + movieName() + " — revealed in Finder."}));
    EXPECT_TRUE(project.recordingBookmark());
}

TEST_F(LiveRunRecording, ARunThatShowsNothingHasNoMovie)
{
    project.setSteps({stepOf(StepKind::click)});
    options.countdown = false;
    run();
    EXPECT_EQ(reported, QStringList("Live run finished."));
    EXPECT_EQ(controller.recordingPath(), "");
    EXPECT_FALSE(project.recordingBookmark());
}

TEST_F(LiveRunRecording, TheNextRunWithoutARecordingHasNone)
{
    run();
    options.recordMode = RecordMode::off;
    run();
    EXPECT_EQ(controller.recordingPath(), "");
    EXPECT_TRUE(project.recordingBookmark());
}

TEST_F(LiveRunRecording, WhereTheScreenCannotBeCapturedItSaysWhy)
{
    EXPECT_EQ(controller.recordingMissing(), "");
    desktop.capture().setMissing("No screen here.");
    EXPECT_EQ(controller.recordingMissing(), "No screen here.");
}

} // namespace velvane
