#include "capture/RecordActionsFixture.h"

namespace velvane {

namespace {

constexpr auto noAccessibility = "Grant Accessibility permission to Velvane, then run again.";
constexpr auto noListening =
    "Couldn't start recording — grant Input Monitoring to Velvane in System Settings.";

} // namespace

TEST_F(RecordActionsFixture, WithoutThePermissionItIsAskedForAndTheSettingsOpen)
{
    desktop.permissions().setGranted(Permission::accessibility, false);
    record();
    EXPECT_EQ(reported, QStringList({noAccessibility}));
    EXPECT_EQ(desktop.log(),
              QStringList({"request accessibility",
                           "open x-apple.systempreferences:com.apple.preference.security"
                           "?Privacy_Accessibility"}));
    EXPECT_EQ(controller.outcome(), RecordActionsController::Outcome::refused);
    EXPECT_FALSE(controller.isBusy());
    EXPECT_EQ(now(), 0);
}

TEST_F(RecordActionsFixture, WhenTheUserGrantsItTheRecordingGoesOn)
{
    desktop.permissions().setGranted(Permission::accessibility, false);
    desktop.permissions().setAnswer(Permission::accessibility, true);
    clickAt(3s);
    pressEscapeAt(4s);
    record();
    EXPECT_EQ(reported, QStringList({"Recorded 1 step."}));
}

TEST_F(RecordActionsFixture, ARefusalToListenIsSaidWithOurWindowsBack)
{
    desktop.permissions().setGranted(Permission::inputMonitoring, false);
    const DocState before = project.docState();
    record();
    EXPECT_EQ(reported, QStringList({noListening}));
    EXPECT_FALSE(desktop.shell().hidden());
    EXPECT_TRUE(desktop.shell().active());
    EXPECT_TRUE(project.docState() == before);
    EXPECT_EQ(controller.outcome(), RecordActionsController::Outcome::refused);
    EXPECT_EQ(ears(), 0);
    EXPECT_FALSE(controller.recorder());
}

TEST_F(RecordActionsFixture, WithoutEscapeNothingCouldEndItSoItDoesNotBegin)
{
    desktop.keys().setMissing("No keys here.");
    record();
    EXPECT_EQ(reported, QStringList({noListening}));
    EXPECT_EQ(ears(), 0);
}

TEST_F(RecordActionsFixture, WhatTheDesktopLacksIsTheReason)
{
    desktop.tap().setMissing("No listening here.");
    EXPECT_EQ(controller.missing(), "No listening here.");
    EXPECT_FALSE(controller.canRecord());
    record();
    EXPECT_EQ(reported, QStringList({"No listening here."}));
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(RecordActionsFixture, HeldItDoesNotStart)
{
    controller.hold("A live run is in progress.");
    EXPECT_FALSE(controller.canRecord());
    controller.recordActions();
    EXPECT_EQ(reported, QStringList({"A live run is in progress."}));
    controller.hold({});
    EXPECT_TRUE(controller.canRecord());
}

// The canvas that is smaller than the screen.

struct CanvasOffer : RecordActionsFixture {
    CanvasOffer()
    {
        project.setCanvasSize({1280, 800});
        controller.askAboutCanvasWith(
            [this](QSizeF screen, const RecordActionsController::Chosen &chosen) {
                offered << screen;
                if (answer)
                    chosen(*answer);
            });
    }
    /// The command from now on until Esc after a click outside the small canvas.
    void recordCorner()
    {
        const Seconds begin = desktop.clock().now();
        at(begin + 3s, [this] {
            hear(Kind::leftMouseDown, {1900, 1000});
            hear(Kind::leftMouseUp, {1900, 1000});
        });
        pressEscapeAt(begin + 4s);
        QEventLoop loop;
        QObject::connect(&controller, &RecordActionsController::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        controller.recordActions();
        if (controller.isBusy())
            loop.exec();
    }
    QPointF lastMove() const { return project.steps()[project.steps().size() - 2].point; }

    std::optional<CanvasChoice> answer;
    QList<QSizeF> offered;
};

TEST_F(CanvasOffer, AKeptCanvasClampsAndIsNotAskedAboutAgain)
{
    answer = CanvasChoice::keepCanvas;
    recordCorner();
    EXPECT_EQ(offered, QList<QSizeF>({{1920, 1080}}));
    EXPECT_EQ(lastMove(), QPointF(1280, 800));
    recordCorner();
    EXPECT_EQ(offered.size(), 1);
    EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
}

TEST_F(CanvasOffer, AMatchedCanvasIsPartOfTheOneEdit)
{
    answer = CanvasChoice::matchScreen;
    recordCorner();
    EXPECT_EQ(lastMove(), QPointF(1900, 1000));
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(undo.count(), 1);
    undo.undo();
    EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
    // Remembered.
    recordCorner();
    EXPECT_EQ(offered.size(), 1);
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
}

TEST_F(CanvasOffer, AMatchedCanvasStaysAsItIsWhenNothingIsRecorded)
{
    answer = CanvasChoice::matchScreen;
    pressEscapeAt(1s);
    QEventLoop loop;
    QObject::connect(&controller, &RecordActionsController::finished, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    controller.recordActions();
    loop.exec();
    EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
}

TEST_F(CanvasOffer, WithoutAnAnswerNothingIsRecorded)
{
    controller.recordActions();
    EXPECT_FALSE(controller.isBusy());
    EXPECT_EQ(offered.size(), 1);
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(CanvasOffer, NothingIsAskedWhenTheScreenFitsOrThereIsNone)
{
    project.setCanvasSize({1920, 1080});
    EXPECT_FALSE(controller.largerScreen());
    project.setCanvasSize({1920, 1079});
    EXPECT_EQ(controller.largerScreen(), QSizeF(1920, 1080));
    desktop.screens().setDisplays({});
    EXPECT_FALSE(controller.largerScreen());
}

} // namespace velvane
