#include "editor/EditorToolBar.h"
#include "editor/IconButton.h"
#include "editor/SegmentBar.h"
#include "support/EditorFixture.h"

#include <QMenu>

namespace velvane {

namespace {

struct EditorToolBarTest : EditorFixture {
    template <typename Widget>
    Widget &named(const QString &name)
    {
        auto *found = Widgets::named<Widget>(*view->findChild<EditorToolBar *>(), name);
        EXPECT_TRUE(found) << name.toStdString();
        return *found;
    }
    QMenu &runOptions()
    {
        QMenu *menu = named<IconButton>("Run options").menu();
        Q_EMIT menu->aboutToShow();
        return *menu;
    }
    QAction &option(const QString &text)
    {
        for (QAction *action : runOptions().actions())
            if (action->text() == text)
                return *action;
        ADD_FAILURE() << text.toStdString();
        static QAction none;
        return none;
    }
};

} // namespace

TEST_F(EditorToolBarTest, BackdropsHaveTheirSymbolsAndHelp)
{
    open({});
    const auto &live = named<SegmentButton>("Live");
    EXPECT_EQ(live.symbol(), "macwindow");
    EXPECT_TRUE(live.toolTip().startsWith("Show your live screen as the backdrop"));
    const auto &freeze = named<SegmentButton>("Freeze");
    EXPECT_EQ(freeze.symbol(), "snowflake");
    EXPECT_TRUE(freeze.toolTip().startsWith(
        "Freeze the current frame so you can pick targets against a still"));
    const auto &recording = named<SegmentButton>("Recording");
    EXPECT_EQ(recording.symbol(), "film");
    EXPECT_TRUE(
        recording.toolTip().startsWith("Play the captured screen recording as the backdrop"));
}

TEST_F(EditorToolBarTest, ABackdropThatCannotBeShownIsDisabledAndSaysWhy)
{
    open({});
    view->backdrop().setLiveMissing("No screen here.");
    EXPECT_FALSE(named<SegmentButton>("Live").isEnabled());
    EXPECT_TRUE(named<SegmentButton>("Live").toolTip().contains("No screen here."));
    view->backdrop().setLiveMissing({});
    EXPECT_TRUE(named<SegmentButton>("Live").isEnabled());
}

TEST_F(EditorToolBarTest, LiveAndRecordingExcludeEachOther)
{
    open({});
    view->backdrop().setLiveMissing({});
    view->backdrop().setRecordingMissing({});
    named<SegmentButton>("Live").click();
    EXPECT_TRUE(named<SegmentButton>("Live").isChecked());
    named<SegmentButton>("Recording").click();
    EXPECT_TRUE(named<SegmentButton>("Recording").isChecked());
    EXPECT_FALSE(named<SegmentButton>("Live").isChecked());
}

TEST_F(EditorToolBarTest, FreezeNeedsASource)
{
    open({});
    EXPECT_FALSE(named<SegmentButton>("Freeze").isEnabled());
    EXPECT_TRUE(
        named<SegmentButton>("Freeze").toolTip().contains("Turn on Live or Recording first."));
}

TEST_F(EditorToolBarTest, AFreezeWithoutAFrameStaysOffAndSaysSo)
{
    open({});
    view->backdrop().setLiveMissing({});
    named<SegmentButton>("Live").click();
    named<SegmentButton>("Freeze").click();
    EXPECT_FALSE(named<SegmentButton>("Freeze").isChecked());
    EXPECT_FALSE(view->statusLine().message().isEmpty());
}

TEST_F(EditorToolBarTest, AFreezeKeepsTheFrame)
{
    open({});
    view->backdrop().setLiveMissing({});
    view->backdrop().setLiveFrame(QImage(64, 40, QImage::Format_RGB32), {64, 40});
    named<SegmentButton>("Live").click();
    named<SegmentButton>("Freeze").click();
    EXPECT_TRUE(named<SegmentButton>("Freeze").isChecked());
    EXPECT_EQ(undo.undoText(), "Freeze Frame");
}

TEST_F(EditorToolBarTest, TheMagnifierFollowsTheCanvas)
{
    open({});
    auto &magnify = named<IconButton>("Magnify the canvas 4× (Z)");
    EXPECT_EQ(magnify.toolTip(), "Magnify the canvas 4× (Z)");
    magnify.click();
    EXPECT_TRUE(view->canvas().magnify());
    view->canvas().setMagnify(false);
    EXPECT_FALSE(magnify.isChecked());
}

TEST_F(EditorToolBarTest, RunOptionsAreKept)
{
    open({});
    const bool hid = settings.hideOthersDuringRun();
    option("Hide other apps during run").trigger();
    EXPECT_EQ(settings.hideOthersDuringRun(), !hid);
    EXPECT_TRUE(option("Show mouse cursor").isChecked());
    option("Show mouse cursor").trigger();
    EXPECT_FALSE(settings.recordCursor());
    option("Record screen").trigger();
    EXPECT_EQ(settings.recordModeRaw(), "screen");
    EXPECT_TRUE(option("Record screen").isChecked());
    EXPECT_FALSE(option("Don't record").isChecked());
}

TEST_F(EditorToolBarTest, EachRecordingModeHasItsSymbol)
{
    open({});
    const auto symbol = [this](const char *text) {
        const QAction &mode = option(text);
        EXPECT_FALSE(mode.icon().isNull());
        return mode.property("symbol").toString();
    };
    EXPECT_EQ(symbol("Don't record"), "video.slash");
    EXPECT_EQ(symbol("Record screen"), "video");
    EXPECT_EQ(symbol("Record active window"), "macwindow");
}

TEST_F(EditorToolBarTest, RunOptionsNameTheRecordingMode)
{
    open({});
    EXPECT_EQ(option("Recording mode").text(), "Recording mode");
    EXPECT_FALSE(option("Recording mode").isEnabled());
}

TEST_F(EditorToolBarTest, TheActiveWindowNeedsASingleAppFlow)
{
    open({stepOf(StepKind::switchApp, "Mail")});
    EXPECT_TRUE(option("Record active window").isEnabled());
    EXPECT_FALSE(option("Active window needs a single-app flow").isVisible());

    project.setSteps({stepOf(StepKind::switchApp, "Mail"), stepOf(StepKind::switchApp, "Notes")});
    EXPECT_FALSE(option("Record active window").isEnabled());
    EXPECT_TRUE(option("Active window needs a single-app flow").isVisible());
}

TEST_F(EditorToolBarTest, WhereTheScreenCannotBeCapturedRecordingItIsNotOffered)
{
    desktop.capture().setMissing("No screen here.");
    open({});
    EXPECT_TRUE(option("Don't record").isEnabled());
    EXPECT_FALSE(option("Record screen").isEnabled());
    EXPECT_EQ(option("Record screen").toolTip(), "No screen here.");
    EXPECT_TRUE(runOptions().toolTipsVisible());
    EXPECT_FALSE(option("Record active window").isEnabled());
}

TEST_F(EditorToolBarTest, RunLiveIsDisabledWithItsReasonUntilItIsPossible)
{
    desktop.input().setMissing("No input here.");
    open({});
    const auto &run = named<IconButton>("Run Live");
    EXPECT_TRUE(run.toolTip().startsWith("Drive the real cursor through these steps"));
    ASSERT_FALSE(view->liveRun().missing().isEmpty());
    EXPECT_FALSE(run.isEnabled());
    EXPECT_TRUE(run.toolTip().contains(view->liveRun().missing()));
}

} // namespace velvane
