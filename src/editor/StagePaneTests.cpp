#include "editor/StagePane.h"

#include "capture/RecordActionsController.h"
#include "editor/BackdropController.h"
#include "editor/CanvasHint.h"
#include "editor/ScreenRecordingPrompt.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/CanvasStage.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class StagePaneTest : public testing::Test {
protected:
    StagePaneTest() { pane.resize(1000, 640); }
    ~StagePaneTest() override { stage.canvas.setParent(nullptr); }

    QStringList labels() const
    {
        QStringList texts;
        for (const QLabel *label : pane.findChildren<QLabel *>())
            texts << label->text();
        return texts;
    }

    CanvasStage stage{{{.point = {1900, 300}}, {.kind = StepKind::release}}};
    SimulatedDesktop desktop;
    BackdropController backdrop{stage.project, stage.status, desktop};
    StagePane pane{&stage.canvas, backdrop};
};

} // namespace

TEST_F(StagePaneTest, TheCanvasFillsTheStage)
{
    pane.grab();
    EXPECT_EQ(stage.canvas.geometry(), QRect(0, 0, 1000, 640));
}

TEST_F(StagePaneTest, ThePromptShowsOverTheCanvasWhileThePermissionIsMissing)
{
    pane.grab();
    EXPECT_TRUE(pane.prompt().isHidden());
    pane.setPermissionMissing(true);
    EXPECT_FALSE(pane.prompt().isHidden());
    EXPECT_EQ(pane.prompt().geometry(), QRect(20, 50, 960, 540));
    EXPECT_TRUE(stage.canvas.scene().marks().markers.isEmpty());
    pane.setPermissionMissing(false);
    EXPECT_TRUE(pane.prompt().isHidden());
    EXPECT_EQ(stage.canvas.scene().marks().markers.size(), 1);
}

TEST_F(StagePaneTest, ThePromptSaysWhatIsMissingAndWhy)
{
    EXPECT_TRUE(labels().contains("Screen Recording permission needed"));
    EXPECT_TRUE(labels().contains("Velvane shows your live screen as the backdrop so you can pick "
                                  "targets where they really are."));
    EXPECT_EQ(pane.prompt().openSettingsButton().accessibleName(), "Open Settings");
    EXPECT_EQ(pane.prompt().tryAgainButton().accessibleName(), "Try Again");
}

TEST_F(StagePaneTest, ThePromptsButtonsAreReported)
{
    const QSignalSpy settings(&pane.prompt(), &ScreenRecordingPrompt::settingsRequested);
    const QSignalSpy retries(&pane.prompt(), &ScreenRecordingPrompt::retryRequested);
    pane.prompt().openSettingsButton().click();
    EXPECT_EQ(settings.size(), 1);
    EXPECT_EQ(retries.size(), 0);
    pane.prompt().tryAgainButton().click();
    EXPECT_EQ(retries.size(), 1);
}

TEST_F(StagePaneTest, TheHintsLiveButtonSaysWhyItCannotBeUsed)
{
    IconButton &live = stage.canvas.hint().liveButton();
    backdrop.setLiveMissing(QStringLiteral("No screen here."));
    EXPECT_FALSE(live.isEnabled());
    EXPECT_TRUE(live.toolTip().contains("No screen here."));
    backdrop.setLiveMissing({});
    EXPECT_TRUE(live.isEnabled());
    live.click();
    EXPECT_TRUE(backdrop.showLive());
}

TEST_F(StagePaneTest, TheHintOffersToRecordOnceThereIsWhoRecords)
{
    IconButton &button = stage.canvas.hint().recordButton();
    EXPECT_TRUE(button.isHidden());
    Playback playback;
    RecordActionsController record(stage.project, playback, desktop);
    pane.offerRecording(record);
    EXPECT_FALSE(button.isHidden());
    EXPECT_EQ(button.isEnabled(), record.canRecord());
}

TEST_F(StagePaneTest, TheBackdropsPictureIsShown)
{
    pane.grab();
    stage.project.setBackground(blank({1920, 1080}, Qt::green));
    EXPECT_EQ(pane.grab().toImage().pixelColor(100, 100), QColor(Qt::green));
}

} // namespace velvane
