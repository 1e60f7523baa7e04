#pragma once

#include "capture/RecordActionsController.h"
#include "capture/RunSettings.h"
#include "editor/AppCatalog.h"
#include "editor/BackdropController.h"
#include "editor/CanvasController.h"
#include "editor/Condensing.h"
#include "editor/ExportController.h"
#include "editor/FieldEditing.h"
#include "editor/LiveBackdrop.h"
#include "editor/PickLocationController.h"
#include "editor/PreviewTimeline.h"
#include "editor/RecordingBackdrop.h"
#include "editor/Selection.h"
#include "editor/StatusLine.h"
#include "editor/StepClipboard.h"
#include "live/LiveRunController.h"

#include <QWidget>

class QSplitter;

namespace velvane {

class EditorToolBar;
class FocusedActions;
class InspectorPane;
class LiveOverlay;
class MenuActionsPublisher;
class PreviewCanvas;
class StagePane;
class StatusLineView;
class StepListPane;
class TransportBar;
class VideoScrubBar;

/// Widths that the user gave the panes, logical pixels; 0 where the window's size decides.
struct PaneWidths {
    int sidebar = 0;
    int inspector = 0;
};

/// The editor of one demo: builds the panes and the controllers, and wires them. It decides
/// nothing; each operation has one home:
///
/// | Home | Operations and state |
/// |---|---|
/// | StepList (of project()) | visibleSteps displayNumber selectedIndex selectedMoveID addStep
///   deleteStep deleteSelected moveVisible toggleCollapse uncollapseSectionContaining setApp
///   distinctSwitchApps |
/// | FieldEditing | bump (of seconds and coordinates) focusedField |
/// | LiveRunController | runLive liveSnapshot liveCountdown isRunningLive liveCancel |
/// | Live | raiseBehindUs |
/// | RecordActionsController | recordActions isRecording recordCancel |
/// | BackdropController | freezeFrame showLive frozen showRecording |
/// | RecordingBackdrop | loadRecordingBackdrop syncBackdropTime videoBackdrop (its video) |
/// | ExportController | exportMovie isExporting exportProgress |
/// | PickLocationController | pickLocation |
/// | CanvasController | handleCanvasClick arrowNudge magnify |
/// | Selection, StatusLine | selectedIDs, message (the status message) |
/// | RunSettings | hideOthersDuringRun recordModeRaw recordCursor |
/// | Playback | time isPlaying play pause |
class ContentView : public QWidget {
    Q_OBJECT
public:
    /// Borrows all it is given. Undo entries go to the project's undo stack.
    ContentView(Project &project, Desktop &desktop, RunSettings &settings, AppCatalog &apps,
                QWidget *parent = nullptr);
    ~ContentView() override;

    Project &project() { return m_project; }
    RunSettings &runSettings() { return m_runSettings; }
    StatusLine &statusLine() { return m_statusLine; }
    Selection &selection() { return m_selection; }
    StepClipboard &clipboard() { return m_clipboard; }
    FieldEditing &fieldEditing() { return m_fieldEditing; }
    Playback &playback() { return m_playback; }
    LiveRunController &liveRun() { return m_liveRun; }
    RecordActionsController &recordActions() { return m_recordActions; }
    BackdropController &backdrop() { return m_backdrop; }
    LiveBackdrop &liveBackdrop() { return m_live; }
    RecordingBackdrop &recording() { return m_recording; }
    PickLocationController &pickLocation() { return m_pickLocation; }
    CanvasController &canvas() { return m_canvas; }
    ExportController &exporting() { return m_export; }
    /// What this editor publishes for the menus.
    FocusedActions &menuActions();

    StepListPane &stepListPane() { return *m_steps; }
    InspectorPane &inspectorPane() { return *m_inspector; }
    PreviewCanvas &previewCanvas() { return *m_preview; }

    PaneWidths paneWidths() const { return m_userWidths; }
    void restorePaneWidths(PaneWidths widths);

    QSize minimumSizeHint() const override { return {960, 600}; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    void wireMessages();
    void wireStage();
    void wireLiveBackdrop();
    void wireLiveRun();
    void wireRecordActions();
    void takeTurns();
    void wireRecording();
    void condense();
    void sizePanes();
    void updateStatusCanvas();

    Project &m_project;
    RunSettings &m_runSettings;
    StatusLine m_statusLine;
    Selection m_selection;
    StepClipboard m_clipboard;
    FieldEditing m_fieldEditing;
    Playback m_playback;
    PreviewTimeline m_timeline;
    LiveRunController m_liveRun;
    RecordActionsController m_recordActions;
    BackdropController m_backdrop;
    LiveBackdrop m_live;
    RecordingBackdrop m_recording;
    PickLocationController m_pickLocation;
    CanvasController m_canvas;
    ExportController m_export;

    StepListPane *m_steps;
    EditorToolBar *m_toolBar;
    PreviewCanvas *m_preview;
    StagePane *m_stage;
    TransportBar *m_transport;
    InspectorPane *m_inspector;
    StatusLineView *m_statusView;
    VideoScrubBar *m_scrubBar;
    LiveOverlay *m_overlay;
    std::unique_ptr<MenuActionsPublisher> m_menuActions;
    QSplitter *m_outer = nullptr;
    QSplitter *m_inner = nullptr;
    std::optional<Condensing> m_condensing;
    PaneWidths m_userWidths;
};

} // namespace velvane
