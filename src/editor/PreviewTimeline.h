#pragma once

#include "model/Project.h"
#include "timeline/Playback.h"
#include "timeline/Timeline.h"

namespace velvane {

/// The timeline of a demo as it stands, and the keeper of the playback's total. One for all views
/// of a window. Main thread only.
class PreviewTimeline : public QObject {
    Q_OBJECT
public:
    PreviewTimeline(Project &project, Playback &playback, QObject *parent = nullptr);

    const Timeline &timeline() const { return m_timeline; }
    /// What the playback's time shows.
    FrameState state() const { return m_timeline.state(m_playback.time()); }

Q_SIGNALS:
    void timelineChanged();

private:
    void update();

    Project &m_project;
    Playback &m_playback;
    Timeline m_timeline;
};

} // namespace velvane
