#include "capture/RecordActionsFixture.h"

#include "capture/Bookmark.h"
#include "media/MovieReader.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFileInfo>

#include <random>

namespace velvane {

namespace {

// The screen that is recorded changes while the test's user acts.
struct RecordActionsMovie : RecordActionsFixture {
    RecordActionsMovie()
    {
        project.setCanvasSize({320, 200});
        project.setStartPoint({160, 100});
        const QRectF frame(0, 0, 320, 200);
        desktop.screens().setDisplays({{.name = "small", .frame = frame, .visible = frame}});
        QObject::connect(&controller, &RecordActionsController::movieRecorded, [this] { ++told; });
        QObject::connect(&controller, &RecordActionsController::movieEnded,
                         [this](const QString &message) { movieEnds << message; });
        showAt(2.7s, Qt::red);
        showAt(3.5s, Qt::blue);
    }

    void showAt(Seconds time, const QColor &color)
    {
        at(time, [this, color] {
            QImage picture(320, 200, QImage::Format_RGB32);
            picture.fill(color);
            desktop.capture().show(picture);
        });
    }
    static QStringList movies()
    {
        return QDir(Bookmark::recordingsFolder()).entryList(QDir::Files);
    }

    int told = 0;
    QStringList movieEnds;
};

} // namespace

TEST_F(RecordActionsMovie, TheMovieBecomesTheDemosRecordingInTheSameEdit)
{
    project.setRecordingBookmark(QByteArray("an older movie"));
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 1 step with screen recording."}));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(movieEnds, QStringList());
    ASSERT_TRUE(project.recordingBookmark());
    const auto movie = Bookmark::resolve(*project.recordingBookmark());
    ASSERT_TRUE(movie);
    EXPECT_EQ(QFileInfo(*movie).path(), Bookmark::recordingsFolder());
    const MovieOpening opening = MovieReader::open(*movie);
    ASSERT_TRUE(opening.reader) << opening.error.toStdString();
    EXPECT_EQ(opening.reader->size(), QSize(320, 200));
    EXPECT_NEAR(opening.reader->duration().count(), 1.5, 0.2);
    EXPECT_EQ(desktop.capture().streams(), 0);
    ASSERT_EQ(undo.count(), 1);
    undo.undo();
    EXPECT_EQ(project.recordingBookmark(), QByteArray("an older movie"));
}

TEST_F(RecordActionsMovie, TheWholeDisplayIsRecordedWithoutThePointer)
{
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    ASSERT_EQ(desktop.capture().requests().size(), 1U);
    EXPECT_FALSE(desktop.capture().requests()[0].region);
    EXPECT_FALSE(desktop.capture().requests()[0].showsCursor);
}

TEST_F(RecordActionsMovie, SeveralStepsAreSaidInThePlural)
{
    clickAt(3s);
    clickAt(3.2s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 2 steps with screen recording."}));
}

TEST_F(RecordActionsMovie, EscapeInTheCountdownStartsNoMovie)
{
    pressEscapeAt(1s);
    record();
    EXPECT_TRUE(desktop.capture().requests().empty());
    EXPECT_EQ(movies(), QStringList());
}

TEST_F(RecordActionsMovie, WithoutStepsTheDemoKeepsItsOldRecording)
{
    project.setRecordingBookmark(QByteArray("an older movie"));
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recording stopped — no actions captured."}));
    EXPECT_EQ(project.recordingBookmark(), QByteArray("an older movie"));
    EXPECT_EQ(told, 0);
}

TEST_F(RecordActionsMovie, WithoutAMovieTheStepsAreRecordedAndNothingIsSaidOfIt)
{
    desktop.permissions().setGranted(Permission::screenRecording, false);
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
    EXPECT_EQ(told, 0);
    EXPECT_FALSE(project.recordingBookmark());
    EXPECT_EQ(movies(), QStringList());
}

TEST_F(RecordActionsMovie, ADisplayThatIsTakenAwayKeepsTheStepsAndTheMovieSoFar)
{
    at(3.6s, [this] { desktop.capture().end("The display has gone."); });
    clickAt(3s);
    clickAt(3.8s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 2 steps with screen recording."}));
    EXPECT_EQ(movies().size(), 1);
    EXPECT_EQ(movieEnds, QStringList({"Recording stopped: The display has gone."}));
}

TEST_F(RecordActionsMovie, OffsetsCountFromTheMoviesBeginningHoweverLongItTakesToOpen)
{
    desktop.capture().setOpeningTime(0.25s);
    clickAt(3.5s);
    pressEscapeAt(4s);
    record();
    ASSERT_EQ(project.steps().size(), 2);
    // The countdown ends at 2.5 s.
    EXPECT_NEAR(project.steps()[1].recordedOffset->count(), 1, 1e-9);
}

TEST_F(RecordActionsMovie, AFolderThatCannotBeMadeCostsOnlyTheMovie)
{
    QFile inTheWay(home.path() + "/Movies");
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
}

TEST_F(RecordActionsMovie, AFullDiskCostsOnlyTheMovie)
{
    // Noise, which takes room.
    QImage noise(320, 200, QImage::Format_RGB32);
    std::mt19937 random(7);
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, uint(random()));
    }
    at(2.6s, [&] { desktop.capture().show(noise); });
    at(3.4s, [&] { desktop.capture().show(noise.mirrored()); });
    clickAt(3s);
    clickAt(3.8s);
    pressEscapeAt(4s);
    const FileSizeLimit full(4096);
    record();
    ASSERT_EQ(reported.size(), 1);
    EXPECT_TRUE(reported[0].startsWith("Recorded 2 steps")) << reported[0].toStdString();
    EXPECT_EQ(project.steps().size(), 3);
    ASSERT_EQ(movieEnds.size(), 1);
    EXPECT_TRUE(movieEnds[0].startsWith("Recording stopped: ")) << movieEnds[0].toStdString();
}

} // namespace velvane
