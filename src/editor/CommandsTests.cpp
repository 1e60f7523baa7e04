#include "support/CommandsFixture.h"

namespace velvane {

using CommandsTest = CommandsFixture;

TEST_F(CommandsTest, EveryItemIsDisabledWhileNoEditorHasTheFocus)
{
    for (const MenuReader *menu : {&inFile, &inDemo, &inView, &inStep})
        for (const QAction *item : menu->all()) {
            EXPECT_FALSE(item->isEnabled()) << item->text().toStdString();
            EXPECT_FALSE(item->isChecked()) << item->text().toStdString();
        }
}

TEST_F(CommandsTest, ItemsAreDisabledAgainWhenTheEditorLosesTheFocus)
{
    publish([](MenuActions &actions) { actions.canRunLive = actions.liveOn = true; });
    EXPECT_TRUE(inDemo.item("Run Live").isEnabled());
    focused.publish(std::optional<MenuActions>());
    EXPECT_FALSE(inDemo.item("Run Live").isEnabled());
    EXPECT_FALSE(inView.item("Live Backdrop").isChecked());
}

TEST_F(CommandsTest, ExportIsEnabledWhileAnEditorPublishesIt)
{
    EXPECT_EQ(inFile.texts(), QStringList{"Export to Video…"});
    EXPECT_EQ(inFile.symbols(), QStringList{"square.and.arrow.up"});
    QAction &item = inFile.item("Export to Video…");
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_E));
    int runs = 0;
    focused.publish(ExportVideoAction{[&] { ++runs; }});
    EXPECT_TRUE(item.isEnabled());
    item.trigger();
    EXPECT_EQ(runs, 1);
    focused.publish(std::optional<ExportVideoAction>());
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(CommandsTest, AnExportMayWithdrawItsActionWhileItIsCalled)
{
    bool ran = false;
    focused.publish(ExportVideoAction{[this, &ran] {
        focused.publish(std::optional<ExportVideoAction>());
        ran = true;
    }});
    inFile.item("Export to Video…").trigger();
    EXPECT_TRUE(ran);
}

TEST_F(CommandsTest, TheDemoMenuHasItsItemsInOrder)
{
    EXPECT_EQ(inDemo.texts(),
              (QStringList{"Run Live", "Screen Recording", "-", "Play", "Go to Start"}));
    EXPECT_EQ(inDemo.symbols(), (QStringList{"cursorarrow.motionlines", "video.badge.checkmark",
                                             "play.fill", "backward.end.fill"}));
    EXPECT_EQ(inDemo.item("Run Live").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_R));
}

TEST_F(CommandsTest, OnlySomeItemsHaveShortcuts)
{
    QStringList with;
    for (const MenuReader *menu : {&inFile, &inDemo, &inView, &inStep})
        for (const QAction *item : menu->all())
            if (!item->shortcut().isEmpty())
                with << item->text();
    EXPECT_EQ(with, (QStringList{"Export to Video…", "Run Live", "Live Backdrop", "Freeze",
                                 "Recording Backdrop", "Zoom 4×", "Record Actions"}));
}

TEST_F(CommandsTest, RunLiveIsDisabledUnlessItCan)
{
    publish();
    EXPECT_FALSE(inDemo.item("Run Live").isEnabled());
    publish([](MenuActions &actions) { actions.canRunLive = true; });
    inDemo.item("Run Live").trigger();
    EXPECT_EQ(calls, QStringList{"runLive"});
}

TEST_F(CommandsTest, PlayReadsPauseWhileThePreviewPlays)
{
    publish([](MenuActions &actions) { actions.canPlayPause = true; });
    EXPECT_EQ(inDemo.texts().at(3), "Play");
    publish([](MenuActions &actions) { actions.canPlayPause = actions.isPlaying = true; });
    QAction &item = inDemo.item("Pause");
    EXPECT_EQ(item.property("symbol"), "pause.fill");
    item.trigger();
    EXPECT_EQ(calls, QStringList{"playPause"});
    focused.publish(std::optional<MenuActions>());
    EXPECT_EQ(item.text(), "Play");
}

TEST_F(CommandsTest, PlayAndGoToStartAreDisabledWhenTheyWouldDoNothing)
{
    publish();
    EXPECT_FALSE(inDemo.item("Play").isEnabled());
    EXPECT_FALSE(inDemo.item("Go to Start").isEnabled());
    publish([](MenuActions &actions) { actions.canGoToStart = true; });
    inDemo.item("Go to Start").trigger();
    EXPECT_EQ(calls, QStringList{"goToStart"});
}

TEST_F(CommandsTest, ScreenRecordingOffersTwoModesOrThree)
{
    publish();
    const MenuReader submenu(*inDemo.item("Screen Recording").menu());
    EXPECT_EQ(submenu.texts(),
              (QStringList{"Don't Record", "Record Screen", "-", "Show Mouse Cursor"}));
    publish([](MenuActions &actions) { actions.windowRecordingAvailable = true; });
    EXPECT_EQ(submenu.texts(), (QStringList{"Don't Record", "Record Screen", "Record Active Window",
                                            "-", "Show Mouse Cursor"}));
    EXPECT_EQ(submenu.symbols(), (QStringList{"video.slash", "video", "macwindow", "cursorarrow"}));
}

TEST_F(CommandsTest, TheChosenModeIsCheckedAlone)
{
    for (const RecordMode mode : {RecordMode::window, RecordMode::screen, RecordMode::off}) {
        publish([mode](MenuActions &actions) {
            actions.windowRecordingAvailable = true;
            actions.recordMode = mode;
        });
        EXPECT_EQ(inDemo.item("Don't Record").isChecked(), mode == RecordMode::off);
        EXPECT_EQ(inDemo.item("Record Screen").isChecked(), mode == RecordMode::screen);
        EXPECT_EQ(inDemo.item("Record Active Window").isChecked(), mode == RecordMode::window);
    }
}

TEST_F(CommandsTest, ChoosingAModeSetsItAndTheCheckWaitsForTheRecord)
{
    publish([](MenuActions &actions) { actions.windowRecordingAvailable = true; });
    for (const char *text : {"Record Screen", "Record Active Window", "Don't Record"})
        inDemo.item(text).trigger();
    EXPECT_EQ(calls,
              (QStringList{"setRecordMode screen", "setRecordMode window", "setRecordMode off"}));
    // The record still says off.
    EXPECT_FALSE(inDemo.item("Record Screen").isChecked());
    EXPECT_TRUE(inDemo.item("Don't Record").isChecked());
}

TEST_F(CommandsTest, TheCursorToggleMattersOnlyToWhatIsRecorded)
{
    publish();
    EXPECT_FALSE(inDemo.item("Show Mouse Cursor").isEnabled());
    EXPECT_TRUE(inDemo.item("Show Mouse Cursor").isChecked());
    publish([](MenuActions &actions) { actions.recordMode = RecordMode::screen; });
    inDemo.item("Show Mouse Cursor").trigger();
    publish([](MenuActions &actions) {
        actions.recordMode = RecordMode::window;
        actions.recordCursor = false;
    });
    EXPECT_FALSE(inDemo.item("Show Mouse Cursor").isChecked());
    inDemo.item("Show Mouse Cursor").trigger();
    EXPECT_EQ(calls, (QStringList{"setRecordCursor 0", "setRecordCursor 1"}));
}

TEST_F(CommandsTest, TheViewMenuHasItsItemsInOrder)
{
    EXPECT_EQ(inView.texts(),
              (QStringList{"Live Backdrop", "Freeze", "Recording Backdrop", "-", "Zoom 4×"}));
    EXPECT_EQ(inView.symbols(),
              (QStringList{"macwindow", "snowflake", "film", "plus.magnifyingglass"}));
    QStringList keys;
    for (const QAction *item : inView.all())
        keys << item->shortcut().toString(QKeySequence::PortableText);
    EXPECT_EQ(keys, (QStringList{"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+8"}));
}

TEST_F(CommandsTest, ViewItemsShowTheirFlags)
{
    publish();
    for (const QAction *item : inView.all()) {
        EXPECT_TRUE(item->isCheckable());
        EXPECT_FALSE(item->isChecked());
        EXPECT_EQ(item->isEnabled(), item->text() == "Zoom 4×") << item->text().toStdString();
    }
    publish([](MenuActions &actions) {
        actions.canToggleLive = actions.canFreeze = actions.canRecordingBackdrop = true;
        actions.liveOn = actions.freezeOn = actions.recordingOn = actions.zoomOn = true;
    });
    for (const QAction *item : inView.all()) {
        EXPECT_TRUE(item->isChecked());
        EXPECT_TRUE(item->isEnabled());
    }
}

TEST_F(CommandsTest, ViewItemsToggleAndTheCheckWaitsForTheRecord)
{
    publish([](MenuActions &actions) {
        actions.canToggleLive = actions.canFreeze = actions.canRecordingBackdrop = true;
    });
    for (QAction *item : inView.all()) {
        item->trigger();
        EXPECT_FALSE(item->isChecked());
    }
    EXPECT_EQ(calls, (QStringList{"toggleLive", "toggleFreeze", "toggleRecording", "toggleZoom"}));
}

TEST_F(CommandsTest, TheStepMenuHasItsItemsInOrder)
{
    EXPECT_EQ(inStep.texts(), (QStringList{"Add Step", "Record Actions", "Pick Location on Screen…",
                                           "-", "Delete Step"}));
    EXPECT_EQ(inStep.symbols(),
              (QStringList{"plus.circle", "record.circle", "dot.scope", "trash"}));
    EXPECT_EQ(inStep.item("Record Actions").shortcut(),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
}

TEST_F(CommandsTest, AddStepOffersEveryKindInOrder)
{
    publish();
    const MenuReader kinds(*inStep.item("Add Step").menu());
    QStringList texts;
    QStringList symbols;
    QStringList added;
    for (const StepKind kind : allStepKinds) {
        texts << label(kind);
        symbols << symbol(kind);
        added << "addStep " + id(kind);
    }
    EXPECT_EQ(kinds.texts(), texts);
    EXPECT_EQ(kinds.symbols(), symbols);
    for (QAction *item : kinds.all())
        item->trigger();
    EXPECT_EQ(calls, added);
}

TEST_F(CommandsTest, WhileRecordingTheItemSaysHowToStopAndStops)
{
    publish([](MenuActions &actions) { actions.canRecord = true; });
    EXPECT_TRUE(inStep.item("Record Actions").isEnabled());
    publish([](MenuActions &actions) { actions.canRecord = actions.isRecording = true; });
    QAction &item = inStep.item("Recording — Esc to Stop");
    EXPECT_EQ(item.property("symbol"), "record.circle");
    item.trigger();
    EXPECT_EQ(calls, QStringList{"record"});
}

TEST_F(CommandsTest, StepItemsAreDisabledUnlessTheyCan)
{
    publish();
    for (const char *text : {"Record Actions", "Pick Location on Screen…", "Delete Step"})
        EXPECT_FALSE(inStep.item(text).isEnabled()) << text;
    publish([](MenuActions &actions) { actions.canPickLocation = actions.canDelete = true; });
    inStep.item("Pick Location on Screen…").trigger();
    inStep.item("Delete Step").trigger();
    EXPECT_EQ(calls, (QStringList{"pickLocation", "deleteStep"}));
}

TEST_F(CommandsTest, EveryItemHasAPicture)
{
    for (const MenuReader *menu : {&inFile, &inDemo, &inView, &inStep})
        for (const QAction *item : menu->all()) {
            const QImage image = item->icon().pixmap(18).toImage();
            bool painted = false;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    painted = painted || qAlpha(image.pixel(x, y)) != 0;
            EXPECT_TRUE(painted) << item->text().toStdString();
        }
}

} // namespace velvane
