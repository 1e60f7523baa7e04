#pragma once

#include "capture/VideoBackdrop.h"
#include "editor/BackdropController.h"
#include "editor/PreviewTimeline.h"

namespace velvane {

/// Plays the demo's recorded movie as its backdrop, in step with the preview. Main thread only.
///
/// The movie is opened when the backdrop is switched on and stays open when it is switched off.
class RecordingBackdrop : public QObject {
    Q_OBJECT
public:
    RecordingBackdrop(Project &project, Playback &playback, PreviewTimeline &timeline,
                      BackdropController &backdrop, StatusLine &status, QObject *parent = nullptr);

    VideoBackdrop &video() { return m_video; }

    /// Finds the demo's movie and opens it, unless it is open. Without one, switches the backdrop
    /// off and says so; a demo that has no recording is left alone.
    QCoro::Task<> loadRecordingBackdrop();

    /// Asks for the movie's picture that belongs to the preview's time. A step that was not
    /// recorded leaves the picture as it is.
    void syncBackdropTime();

private:
    void followProject();
    void followVideo();

    Project &m_project;
    Playback &m_playback;
    PreviewTimeline &m_timeline;
    BackdropController &m_backdrop;
    StatusLine &m_status;
    VideoBackdrop m_video;
    /// Tells the load that is under way from those that it has replaced.
    int m_loads = 0;
};

} // namespace velvane
