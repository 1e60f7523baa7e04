#pragma once

#include "capture/RunSettings.h"
#include "editor/BackdropController.h"
#include "editor/CanvasController.h"
#include "editor/ExportController.h"
#include "editor/FieldEditing.h"
#include "editor/InputTurns.h"
#include "editor/LiveBackdrop.h"
#include "editor/PaneLayout.h"
#include "editor/PreviewTimeline.h"
#include "editor/RecordingBackdrop.h"
#include "editor/Selection.h"
#include "editor/StatusLine.h"
#include "editor/StepClipboard.h"

#include <QWidget>

namespace velvane {

class AppCatalog;
class FocusedActions;
class LiveOverlay;
class MenuActionsPublisher;
class PreviewCanvas;

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
    PaneLayout &panes() { return *m_panes; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void wireStage();
    void wireLiveRun();
    void wireRecordActions();
    void wireRecording();

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
    InputTurns m_turns;
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
    PaneLayout *m_panes;
    std::unique_ptr<MenuActionsPublisher> m_menuActions;
};

} // namespace velvane
