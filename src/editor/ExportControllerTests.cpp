#include "editor/ExportController.h"

#include "support/EditorFixture.h"
#include "support/FileSizeLimit.h"
#include "support/MovieProbe.h"
#include "support/RunToEnd.h"

namespace velvane {

namespace {

Step pause(Seconds length)
{
    Step step = stepOf(StepKind::wait);
    step.pauseAfter = length;
    return step;
}

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image;
}

struct ExportControllerTest : testing::Test {
    ExportControllerTest()
    {
        project.setSteps({pause(0.5s)});
        project.setCanvasSize({64, 48});
        project.setFps(10);
        backdrop.setLiveMissing({});
        backdrop.setRecordingMissing({});
    }

    void run(const QString &name = QStringLiteral("demo.mp4"))
    {
        runToEnd(exporting.exportTo(file(name)));
    }
    QString file(const QString &name) const { return folder.filePath(name); }
    QList<MovieProbe::Picture> pictures(const QString &name = QStringLiteral("demo.mp4")) const
    {
        MovieProbe probe(file(name));
        QList<MovieProbe::Picture> pictures;
        while (const auto picture = probe.next())
            pictures << *picture;
        return pictures;
    }

    QTemporaryDir folder;
    SimulatedDesktop desktop;
    Project project;
    StatusLine status;
    OpenGesture gesture{project};
    BackdropController backdrop{project, status, desktop};
    QList<ExportQuestion> asked;
    ExportController exporting{project, status, backdrop, gesture,
                               [this](const ExportQuestion &question) { asked << question; }};
};

} // namespace

TEST_F(ExportControllerTest, AsksForAFileAndDoesNothingUntilOneIsChosen)
{
    status.setMessage("before");
    exporting.exportMovie();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.constFirst().name, "Velvane.mp4");
    EXPECT_EQ(asked.constFirst().note, "");
    EXPECT_FALSE(exporting.isExporting());
    EXPECT_EQ(status.message(), "before");
}

TEST_F(ExportControllerTest, TheChosenFileIsExportedTo)
{
    exporting.exportMovie();
    QEventLoop loop;
    QObject::connect(&exporting, &ExportController::finished, &loop, &QEventLoop::quit);
    asked.constFirst().chosen(file("My demo.mp4"));
    EXPECT_TRUE(exporting.isExporting());
    EXPECT_EQ(exporting.exportProgress(), 0);
    EXPECT_EQ(status.message(), "");
    loop.exec();
    EXPECT_FALSE(exporting.isExporting());
    EXPECT_EQ(exporting.exportProgress(), 1);
    EXPECT_EQ(status.message(), "Exported to My demo.mp4.");
    EXPECT_EQ(pictures("My demo.mp4").size(), 5);
}

TEST_F(ExportControllerTest, TheNoteSaysThatTheRecordingIsNotExported)
{
    backdrop.setShowRecording(true);
    exporting.exportMovie();
    EXPECT_EQ(asked.constFirst().note, "The recording backdrop is only for the preview: the movie "
                                       "shows the demo's still backdrop.");
}

TEST_F(ExportControllerTest, ProgressRisesToOne)
{
    QList<double> values;
    QObject::connect(&exporting, &ExportController::exportProgressChanged, &exporting,
                     [&] { values << exporting.exportProgress(); });
    run();
    EXPECT_EQ(values, (QList{1 / 5.0, 2 / 5.0, 3 / 5.0, 4 / 5.0, 1.0}));
}

TEST_F(ExportControllerTest, ASecondExportStartsAtZero)
{
    run();
    QList<double> values;
    QObject::connect(&exporting, &ExportController::exportProgressChanged, &exporting,
                     [&] { values << exporting.exportProgress(); });
    run();
    EXPECT_EQ(values.constFirst(), 0);
    EXPECT_EQ(values.constLast(), 1);
}

TEST_F(ExportControllerTest, WhatIsBeingEditedIsExportedAndBecomesAnUndoEntry)
{
    QUndoStack undo;
    project.setUndoManager(&undo);
    gesture.begin("Change Frame Rate");
    project.setFps(4);
    run();
    EXPECT_EQ(undo.undoText(), "Change Frame Rate");
    EXPECT_EQ(pictures().size(), 2);
}

TEST_F(ExportControllerTest, WithTheLiveBackdropTheMovieIsTheScreen)
{
    backdrop.setShowLive(true);
    backdrop.setLiveFrame(picture({320, 240}), {160, 120});
    run();
    EXPECT_EQ(pictures().constFirst().size, QSize(160, 120));
    // Green in BT.709 luma.
    EXPECT_GT(quint8(pictures().constFirst().luma.at(0)), 150);
}

TEST_F(ExportControllerTest, TheDemosOwnPictureIsStrongerThanTheLiveOne)
{
    project.setBackground(picture({64, 48}));
    backdrop.setShowLive(true);
    backdrop.setLiveFrame(picture({320, 240}), {160, 120});
    run();
    EXPECT_EQ(pictures().constFirst().size, QSize(64, 48));
}

TEST_F(ExportControllerTest, WithoutALivePictureTheCanvasStays)
{
    backdrop.setShowLive(true);
    run();
    EXPECT_EQ(pictures().constFirst().size, QSize(64, 48));
}

TEST_F(ExportControllerTest, WithLiveOffItsPictureIsNotUsed)
{
    backdrop.setLiveFrame(picture({320, 240}), {160, 120});
    run();
    EXPECT_EQ(pictures().constFirst().size, QSize(64, 48));
}

TEST_F(ExportControllerTest, CancelKeepsTheFramesDoneAndSaysSo)
{
    project.setSteps({pause(3600s)});
    QObject::connect(&exporting, &ExportController::exportProgressChanged, &exporting,
                     &ExportController::cancel);
    run();
    EXPECT_EQ(status.message(), "Export cancelled.");
    EXPECT_FALSE(exporting.isExporting());
    EXPECT_GE(pictures().size(), 1);
    EXPECT_LT(pictures().size(), 36000);
}

TEST_F(ExportControllerTest, AfterACancelTheNextExportRuns)
{
    exporting.cancel();
    run();
    EXPECT_EQ(status.message(), "Exported to demo.mp4.");
}

TEST_F(ExportControllerTest, WhatTheSystemSaysOfAFileIsPassedOn)
{
    run("missing/demo.mp4");
    EXPECT_EQ(status.message(), "Export failed: No such file or directory");
    EXPECT_FALSE(exporting.isExporting());
}

TEST_F(ExportControllerTest, AnImpossibleCanvasFails)
{
    project.setCanvasSize({1e6, 1e6});
    run();
    EXPECT_EQ(status.message(), "Export failed: No movie is 1000000 × 1000000 pixels large.");
}

TEST_F(ExportControllerTest, AFullDiskIsThePlainErrorOfTheWriter)
{
    QList<Step> steps;
    for (int i = 0; i < 60; ++i) {
        Step move = stepOf(StepKind::move);
        move.point = i % 2 ? QPointF(0, 0) : QPointF(600, 400);
        move.duration = 0.3s;
        steps << move;
    }
    project.setSteps(steps);
    project.setFps(60);
    project.setCanvasSize({640, 480});
    {
        const FileSizeLimit limit(150'000);
        run();
    }
    EXPECT_EQ(status.message(),
              "Export failed: The operation couldn’t be completed. (Velvane.ExportError error 0.)");
}

TEST_F(ExportControllerTest, WhileExportingASecondOneIsNotAskedFor)
{
    QObject::connect(&exporting, &ExportController::exportProgressChanged, &exporting,
                     [this] { exporting.exportMovie(); });
    run();
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(ExportControllerTest, TheTimeLeftIsUnknownAtFirstAndAfterwards)
{
    EXPECT_FALSE(exporting.timeLeft());
    QObject::connect(&exporting, &ExportController::isExportingChanged, &exporting,
                     [this] { EXPECT_FALSE(exporting.timeLeft()); });
    run();
}

TEST_F(ExportControllerTest, TheTimeLeftIsKnownBeforeTheEndOfALongExport)
{
    project.setSteps({pause(36000s)});
    project.setFps(60);
    std::optional<Seconds> left;
    QObject::connect(&exporting, &ExportController::exportProgressChanged, &exporting, [&] {
        left = exporting.timeLeft();
        if (left)
            exporting.cancel();
    });
    run();
    ASSERT_TRUE(left);
    EXPECT_GT(*left, 0s);
}

TEST_F(ExportControllerTest, AClosingWindowWaitsForTheExportToEnd)
{
    EXPECT_FALSE(exporting.cancelThen(&project, [] { FAIL(); }));
    project.setSteps({pause(3600s)});
    int closed = 0;
    QObject::connect(
        &exporting, &ExportController::exportProgressChanged, &exporting,
        [&] {
            EXPECT_TRUE(exporting.cancelThen(&project, [&] {
                ++closed;
                EXPECT_FALSE(exporting.isExporting());
            }));
        },
        Qt::SingleShotConnection);
    run();
    EXPECT_EQ(closed, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(closed, 1);
}

} // namespace velvane
