#include "editor/RecordingBackdrop.h"

#include "capture/Bookmark.h"
#include "editor/TimeSlider.h"
#include "editor/VideoScrubBar.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/EditorFixture.h"
#include "support/MovieMaker.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/Until.h"

#include <QFile>

#include <gtest/gtest.h>

namespace velvane {

namespace {

using NumberedMovie::numberIn;

constexpr int pictures = 100;
constexpr int rate = 50; // pictures a second

/// The number of the movie's picture for a moment.
int numberAt(Seconds time)
{
    return std::clamp(int(time.count() * rate + 1e-6), 0, pictures - 1);
}

Step recorded(std::optional<Seconds> offset, Seconds length)
{
    return {.kind = StepKind::wait, .pauseAfter = length, .recordedOffset = offset};
}

class RecordingBackdropTest : public MovieTest {
protected:
    RecordingBackdropTest()
    {
        project.setUndoManager(&undo);
        project.setSteps({recorded(Seconds(0.2), 1s), recorded(Seconds(0.8), 2s)});
    }

    /// A movie of that name, which becomes the demo's.
    QString record(const QString &name)
    {
        NumberedMovie::write(file(name), pictures, rate);
        project.setRecordingBookmark(Bookmark::of(file(name)));
        return file(name);
    }

    int shown() const { return numberIn(backdrop.backdrop()); }

    /// Switches the backdrop on and waits for its picture.
    void show()
    {
        backdrop.setShowRecording(true);
        until([this] { return backdrop.hasFrame() && shown() == numberAt(Seconds(0.2)); });
    }

    SimulatedDesktop desktop;
    QUndoStack undo;
    Project project;
    Playback playback;
    PreviewTimeline timeline{project, playback};
    StatusLine status;
    BackdropController backdrop{project, status, desktop};
    RecordingBackdrop recording{project, playback, timeline, backdrop, status};
};

} // namespace

TEST_F(RecordingBackdropTest, ADemoWithoutARecordingRefusesWithItsReason)
{
    EXPECT_EQ(backdrop.recordingMissing(), "This demo has no screen recording yet.");
    backdrop.setShowRecording(true);
    EXPECT_FALSE(backdrop.showRecording());
    runToEnd(recording.loadRecordingBackdrop());
    EXPECT_EQ(status.message(), "This demo has no screen recording yet.");
    EXPECT_EQ(recording.video().url(), "");
}

TEST_F(RecordingBackdropTest, ARecordingIsOfferedAndOpenedOnlyWhenItIsShown)
{
    record("run.mp4");
    EXPECT_EQ(backdrop.recordingMissing(), "");
    EXPECT_EQ(recording.video().url(), "");
    show();
    EXPECT_EQ(recording.video().url(), file("run.mp4"));
    EXPECT_EQ(status.message(), "");
}

TEST_F(RecordingBackdropTest, ItPlaysInStepWithTheTimeline)
{
    record("run.mp4");
    show();
    const Timeline &steps = timeline.timeline();
    const Seconds duration = recording.video().duration();
    for (Seconds time{0}; time <= steps.total(); time += Seconds(1.0 / 60)) {
        playback.setTime(time);
        const Seconds movie = steps.videoTime(time, duration).value();
        EXPECT_EQ(recording.video().currentTime(), std::min(movie, duration));
        // The cache serves moments up to 10 ms apart with one picture.
        until([&] { return std::abs(shown() - numberAt(movie)) <= 1; });
    }
    EXPECT_GE(shown(), pictures - 2);
}

TEST_F(RecordingBackdropTest, AStepThatWasNotRecordedLeavesThePicture)
{
    project.setSteps({recorded(Seconds(0.2), 1s), recorded({}, 1s)});
    record("run.mp4");
    show();
    playback.setTime(Seconds(1.5));
    QCoreApplication::processEvents();
    EXPECT_EQ(recording.video().currentTime(), Seconds(0.2));
    EXPECT_EQ(shown(), numberAt(Seconds(0.2)));
}

TEST_F(RecordingBackdropTest, AnEditedTimelineMovesTheMovieToo)
{
    record("run.mp4");
    show();
    project.setSteps({recorded(Seconds(1.5), 1s)});
    EXPECT_EQ(recording.video().currentTime(), Seconds(1.5));
    until([this] { return shown() == numberAt(Seconds(1.5)); });
}

TEST_F(RecordingBackdropTest, AMissingFileIsSaidAndTheBackdropGoesOff)
{
    ASSERT_TRUE(QFile::remove(record("run.mp4")));
    backdrop.setShowRecording(true);
    until([this] { return !backdrop.showRecording(); });
    EXPECT_EQ(status.message(), "Recording file is missing — backdrop unavailable.");
}

TEST_F(RecordingBackdropTest, ABookmarkOfNonsenseIsAMissingFile)
{
    project.setRecordingBookmark(QByteArray("nonsense"));
    backdrop.setShowRecording(true);
    until([this] { return !backdrop.showRecording(); });
    EXPECT_EQ(status.message(), "Recording file is missing — backdrop unavailable.");
}

TEST_F(RecordingBackdropTest, AFileThatIsNoMovieIsSaid)
{
    QFile text(file("run.mp4"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no movie");
    text.close();
    project.setRecordingBookmark(Bookmark::of(text.fileName()));
    backdrop.setShowRecording(true);
    until([this] { return !status.message().isEmpty(); });
    EXPECT_EQ(status.message(), "Couldn't read the screen recording (run.mp4).");
    EXPECT_EQ(recording.video().duration(), 0s);
    EXPECT_FALSE(backdrop.hasFrame());
}

TEST_F(RecordingBackdropTest, ARenamedMovieIsFound)
{
    ASSERT_TRUE(QFile::rename(record("run.mp4"), file("best.mp4")));
    show();
    EXPECT_EQ(recording.video().url(), file("best.mp4"));
}

TEST_F(RecordingBackdropTest, SwitchedOffTheMovieStaysOpen)
{
    record("run.mp4");
    show();
    backdrop.setShowRecording(false);
    EXPECT_GT(recording.video().duration(), 0s);
    EXPECT_FALSE(recording.video().frame().isNull());
    backdrop.setShowRecording(true);
    EXPECT_EQ(shown(), numberAt(Seconds(0.2)));
}

TEST_F(RecordingBackdropTest, WhileItIsNotShownTheMovieStandsStill)
{
    record("run.mp4");
    show();
    backdrop.setShowRecording(false);
    playback.setTime(1s);
    EXPECT_EQ(recording.video().currentTime(), Seconds(0.2));
    backdrop.setShowRecording(true);
    until([this] { return recording.video().currentTime() == Seconds(0.8); });
}

TEST_F(RecordingBackdropTest, ANewRecordingReplacesTheShownOne)
{
    record("run.mp4");
    show();
    record("second.mp4");
    until([this] { return recording.video().url() == file("second.mp4") && backdrop.hasFrame(); });
    EXPECT_TRUE(backdrop.showRecording());
}

TEST_F(RecordingBackdropTest, WithoutItsRecordingTheBackdropGoesOff)
{
    record("run.mp4");
    show();
    project.setRecordingBookmark({});
    EXPECT_FALSE(backdrop.showRecording());
}

TEST_F(RecordingBackdropTest, AFrozenPictureIsTheMoviesAndTheCanvasAsLarge)
{
    record("run.mp4");
    show();
    const QImage picture = recording.video().frame();
    backdrop.setFrozen(true);
    EXPECT_EQ(project.background().cacheKey(), picture.cacheKey());
    EXPECT_EQ(project.canvasSize(), QSizeF(64, 48));
    EXPECT_EQ(undo.undoText(), "Freeze Frame");
    playback.setTime(1s);
    EXPECT_EQ(recording.video().currentTime(), Seconds(0.2));
    backdrop.setFrozen(false);
    EXPECT_EQ(recording.video().currentTime(), Seconds(0.8));
}

TEST_F(RecordingBackdropTest, ItMayGoAwayWhileItLoads)
{
    record("run.mp4");
    auto other = std::make_unique<RecordingBackdrop>(project, playback, timeline, backdrop, status);
    const auto loading = other->loadRecordingBackdrop();
    other.reset();
    until([&] { return loading.isReady(); });
    EXPECT_EQ(status.message(), "");
}

namespace {

class RecordingInTheEditorTest : public EditorFixture {
protected:
    /// An editor that shows a recording.
    ContentView &openRecorded()
    {
        const QString movie = folder.filePath("run.mp4");
        NumberedMovie::write(movie, pictures, rate);
        project.setRecordingBookmark(Bookmark::of(movie));
        open({recorded(Seconds(0.2), 1s)});
        view->backdrop().setShowRecording(true);
        until([this] { return view->backdrop().hasFrame(); });
        return *view;
    }

    VideoScrubBar &bar() const { return *view->findChild<VideoScrubBar *>(); }
    VideoBackdrop &video() const { return view->recording().video(); }
};

} // namespace

TEST_F(RecordingInTheEditorTest, TheScrubBarShowsWhileTheBackdropIsOn)
{
    openRecorded();
    EXPECT_FALSE(bar().isHidden());
    EXPECT_EQ(bar().slider().total(), video().duration());
    EXPECT_EQ(bar().slider().time(), video().currentTime());
    view->backdrop().setShowRecording(false);
    EXPECT_TRUE(bar().isHidden());
}

TEST_F(RecordingInTheEditorTest, ScrubbingMovesTheMovieAndNotTheDemo)
{
    openRecorded();
    Q_EMIT bar().frameRequested(Seconds(1.5));
    EXPECT_EQ(video().currentTime(), Seconds(1.5));
    EXPECT_EQ(bar().slider().time(), Seconds(1.5));
    EXPECT_EQ(view->playback().time(), 0s);
    until([this] { return numberIn(view->backdrop().backdrop()) == numberAt(Seconds(1.5)); });
}

TEST_F(RecordingInTheEditorTest, WhileFrozenTheScrubBarStaysButCannotBeMoved)
{
    openRecorded();
    view->backdrop().setFrozen(true);
    EXPECT_FALSE(bar().isHidden());
    EXPECT_FALSE(bar().isEnabled());
    view->backdrop().setFrozen(false);
    EXPECT_TRUE(bar().isEnabled());
}

} // namespace velvane
