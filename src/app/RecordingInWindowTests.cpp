#include "app/DocumentsFixture.h"

#include "base/KeyCode.h"
#include "support/TemporaryHome.h"

#include <QEventLoop>
#include <QPointer>

namespace velvane {

namespace {

struct RecordingInWindow : DocumentsFixture {
    RecordingInWindow() { window = documents.open(demo("tour.velvane"), nullptr); }
    ~RecordingInWindow() override { documents.disconnect(); }

    RecordActionsController &recording() { return window->content().recordActions(); }
    void clickAt(Seconds time)
    {
        desktop.clock().at(time, [this] {
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseDown, .point = {640, 400}});
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseUp, .point = {640, 400}});
        });
    }
    /// Lets the recording end and the window go on with what waited for that.
    void waitForTheEnd()
    {
        ASSERT_TRUE(recording().isBusy());
        QEventLoop loop;
        QObject::connect(&recording(), &RecordActionsController::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        loop.exec();
        settle();
    }

    TemporaryHome home;
    QPointer<EditorWindow> window;
};

} // namespace

TEST_F(RecordingInWindow, ALargerScreenIsOfferedFirst)
{
    recording().recordActions();
    EXPECT_FALSE(recording().isBusy());
    EXPECT_EQ(questionText(window), "The screen is larger than the canvas.");
    EXPECT_TRUE(question(window)->informativeText().contains(u"1920\u00a0×\u00a01080"));
    EXPECT_TRUE(question(window)->informativeText().contains(u"1280\u00a0×\u00a0800"));
    answer(window, "Match Screen");
    EXPECT_TRUE(recording().isBusy());
    clickAt(3s);
    desktop.clock().at(4s, [this] { desktop.press(KeyCode::escape); });
    waitForTheEnd();
    EXPECT_EQ(project(window).canvasSize(), QSizeF(1920, 1080));
    EXPECT_TRUE(window->isModified());
}

TEST_F(RecordingInWindow, ThinkingBetterOfItRecordsNothing)
{
    const QStringList before = desktop.log();
    recording().recordActions();
    answer(window, "Cancel");
    EXPECT_FALSE(recording().isBusy());
    EXPECT_EQ(desktop.log(), before);
    // It was no answer: it is asked again.
    recording().recordActions();
    EXPECT_TRUE(question(window));
}

TEST_F(RecordingInWindow, AKeptCanvasIsNotAskedAboutAgain)
{
    recording().recordActions();
    answer(window, "Keep Canvas");
    desktop.clock().at(1s, [this] { desktop.press(KeyCode::escape); });
    waitForTheEnd();
    EXPECT_EQ(project(window).canvasSize(), QSizeF(1280, 800));
    recording().recordActions();
    EXPECT_FALSE(question(window));
    recording().cancel();
    waitForTheEnd();
}

TEST_F(RecordingInWindow, AClosingWindowEndsTheRecordingAndAsksAboutItsSteps)
{
    const auto recorded = recording().record();
    clickAt(3s);
    desktop.clock().at(4s, [this] {
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(recording().recordCancel());
    });
    waitForTheEnd();
    ASSERT_TRUE(window);
    EXPECT_EQ(project(window).steps().size(), 2);
    answer(window, "Don't Save");
    EXPECT_FALSE(window);
}

TEST_F(RecordingInWindow, AWindowThatClosesInTheCountdownGoesAfterIt)
{
    const auto recorded = recording().record();
    desktop.clock().at(1s, [this] { EXPECT_FALSE(window->close()); });
    waitForTheEnd();
    EXPECT_FALSE(window);
}

} // namespace velvane
