#pragma once

#include "capture/RecordMode.h"
#include "model/StepKind.h"

#include <functional>

namespace velvane {

/// What the menus do to the focused editor, and the state they show. Main thread only.
struct MenuActions {
    using Action = std::function<void()>;

    Action runLive;
    bool canRunLive = false;
    Action record;
    bool canRecord = false;
    bool isRecording = false;
    Action playPause;
    bool isPlaying = false;
    Action goToStart;
    Action toggleLive;
    bool liveOn = false;
    Action toggleFreeze;
    bool freezeOn = false;
    bool canFreeze = false;
    Action toggleRecording;
    bool recordingOn = false;
    bool canRecordingBackdrop = false;
    Action toggleZoom;
    bool zoomOn = false;
    std::function<void(StepKind)> addStep;
    Action deleteStep;
    bool canDelete = false;
    Action pickLocation;
    bool canPickLocation = false;
    RecordMode recordMode = RecordMode::off;
    std::function<void(RecordMode)> setRecordMode;
    bool windowRecordingAvailable = false;
    bool recordCursor = true;
    std::function<void(bool)> setRecordCursor;

    // Enabling that no flag above tells: would the action do something?
    bool canPlayPause = false;
    bool canGoToStart = false;
    bool canToggleLive = false;
};

} // namespace velvane
