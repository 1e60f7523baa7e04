#include "editor/MenuActionsPublisher.h"

#include "editor/ContentView.h"
#include "model/StepList.h"

namespace velvane {

MenuActionsPublisher::MenuActionsPublisher(ContentView &editor) : m_editor(editor)
{
    bindActions();
    bindStepActions();
    watchState();
    publish();
    publishExport();
}

void MenuActionsPublisher::bindActions()
{
    ContentView &editor = m_editor;
    m_actions.runLive = [&editor] { editor.liveRun().runLive(); };
    m_actions.playPause = [&editor] { editor.playback().toggle(editor.project().fps()); };
    m_actions.goToStart = [&editor] { editor.playback().goToStart(); };
    m_actions.toggleLive = [&editor] {
        editor.backdrop().setShowLive(!editor.backdrop().showLive());
    };
    m_actions.toggleFreeze = [&editor] {
        editor.backdrop().setFrozen(!editor.backdrop().frozen());
    };
    m_actions.toggleRecording = [&editor] {
        editor.backdrop().setShowRecording(!editor.backdrop().showRecording());
    };
    m_actions.toggleZoom = [&editor] { editor.canvas().toggleMagnify(); };
    m_actions.setRecordMode = [&editor](RecordMode mode) {
        editor.runSettings().setRecordMode(mode);
    };
    m_actions.setRecordCursor = [&editor](bool record) {
        editor.runSettings().setRecordCursor(record);
    };
}

void MenuActionsPublisher::bindStepActions()
{
    ContentView &editor = m_editor;
    m_actions.record = [&editor] { editor.recordActions().recordActions(); };
    m_actions.addStep = [&editor](StepKind kind) { StepList::addStep(editor.project(), kind); };
    m_actions.deleteStep = [&editor] { editor.selection().deleteSelected(); };
    m_actions.pickLocation = [&editor] { editor.pickLocation().pickLocation(); };
}

void MenuActionsPublisher::watchState()
{
    const auto follow = [this](auto &sender, auto... changed) {
        (connect(&sender, changed, this, &MenuActionsPublisher::publish), ...);
    };
    follow(m_editor.project(), &Project::stepsChanged);
    follow(m_editor.selection(), &Selection::targetsChanged);
    follow(m_editor.pickLocation(), &PickLocationController::canPickLocationChanged);
    follow(m_editor.liveRun(), &LiveRunController::missingChanged);
    follow(m_editor.recordActions(), &RecordActionsController::isRecordingChanged,
           &RecordActionsController::missingChanged);
    follow(m_editor.playback(), &Playback::isPlayingChanged, &Playback::totalChanged);
    follow(m_editor.backdrop(), &BackdropController::showLiveChanged,
           &BackdropController::showRecordingChanged, &BackdropController::frozenChanged,
           &BackdropController::canFreezeChanged, &BackdropController::missingChanged);
    follow(m_editor.canvas(), &CanvasController::magnifyChanged);
    follow(m_editor.runSettings(), &RunSettings::changed);
    // Playing moves the time at every frame; only leaving the start and coming back matter.
    connect(&m_editor.playback(), &Playback::timeChanged, this, [this] {
        if ((m_editor.playback().time() != 0s) != m_actions.canGoToStart)
            publish();
    });
    connect(&m_editor.exporting(), &ExportController::isExportingChanged, this,
            &MenuActionsPublisher::publishExport);
}

void MenuActionsPublisher::publish()
{
    readState();
    m_focused.publish(m_actions);
}

void MenuActionsPublisher::readState()
{
    const Playback &playback = m_editor.playback();
    const BackdropController &backdrop = m_editor.backdrop();
    const RunSettings &settings = m_editor.runSettings();
    m_actions.canRunLive = m_editor.liveRun().canRunLive();
    m_actions.canRecord = m_editor.recordActions().canRecord();
    m_actions.isRecording = m_editor.recordActions().isRecording();
    m_actions.isPlaying = playback.isPlaying();
    m_actions.canPlayPause = playback.isPlaying() || playback.total() > 0s;
    m_actions.canGoToStart = playback.time() != 0s;
    m_actions.liveOn = backdrop.showLive();
    m_actions.canToggleLive = backdrop.showLive() || backdrop.liveMissing().isEmpty();
    m_actions.freezeOn = backdrop.frozen();
    m_actions.canFreeze = backdrop.frozen() || (backdrop.canFreeze() && backdrop.hasFrame());
    m_actions.recordingOn = backdrop.showRecording();
    m_actions.canRecordingBackdrop =
        backdrop.showRecording() || backdrop.recordingMissing().isEmpty();
    m_actions.zoomOn = m_editor.canvas().magnify();
    m_actions.canDelete = m_editor.selection().canDelete();
    m_actions.canPickLocation = m_editor.pickLocation().canPickLocation();
    m_actions.recordMode = settings.recordMode();
    m_actions.windowRecordingAvailable =
        m_editor.liveRun().recordingMissing().isEmpty()
        && !StepList::hasSeveralSwitchApps(m_editor.project().steps());
    m_actions.recordCursor = settings.recordCursor();
}

void MenuActionsPublisher::publishExport()
{
    std::optional<ExportVideoAction> action;
    if (!m_editor.exporting().isExporting())
        action = ExportVideoAction{[this] { m_editor.exporting().exportMovie(); }};
    m_focused.publish(std::move(action));
}

} // namespace velvane
