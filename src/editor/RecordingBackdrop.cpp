#include "editor/RecordingBackdrop.h"

#include "base/Background.h"
#include "capture/Bookmark.h"

#include <QFileInfo>
#include <QPointer>

namespace velvane {

RecordingBackdrop::RecordingBackdrop(Project &project, Playback &playback,
                                     PreviewTimeline &timeline, BackdropController &backdrop,
                                     StatusLine &status, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_playback(playback)
    , m_timeline(timeline)
    , m_backdrop(backdrop)
    , m_status(status)
{
    connect(&playback, &Playback::timeChanged, this, &RecordingBackdrop::syncBackdropTime);
    connect(&timeline, &PreviewTimeline::timelineChanged, this,
            &RecordingBackdrop::syncBackdropTime);
    connect(&backdrop, &BackdropController::frozenChanged, this,
            &RecordingBackdrop::syncBackdropTime);
    connect(&backdrop, &BackdropController::showRecordingChanged, this, [this] {
        if (m_backdrop.showRecording())
            loadRecordingBackdrop();
    });
    followProject();
    followVideo();
}

void RecordingBackdrop::followProject()
{
    const auto offer = [this] {
        const bool hasMovie = m_project.recordingBookmark().has_value();
        m_backdrop.setRecordingMissing(hasMovie ? QString()
                                                : tr("This demo has no screen recording yet."));
        if (m_backdrop.showRecording())
            loadRecordingBackdrop();
    };
    connect(&m_project, &Project::recordingBookmarkChanged, this, offer);
    offer();
}

void RecordingBackdrop::followVideo()
{
    const auto show = [this] { m_backdrop.setRecordingFrame(m_video.frame(), m_video.size()); };
    connect(&m_video, &VideoBackdrop::frameChanged, this, show);
    connect(&m_video, &VideoBackdrop::sizeChanged, this, show);
}

QCoro::Task<> RecordingBackdrop::loadRecordingBackdrop()
{
    if (!m_project.recordingBookmark())
        co_return;
    const int load = ++m_loads;
    const QPointer<RecordingBackdrop> self(this);
    std::optional<QString> path;
    // Looking through a folder takes long where the network is slow.
    const std::function<void()> find = [&path, bookmark = *m_project.recordingBookmark()] {
        path = Bookmark::resolve(bookmark);
    };
    co_await inBackground(find);
    if (!self || load != m_loads)
        co_return;
    if (!path) {
        m_status.setMessage(tr("Recording file is missing — backdrop unavailable."));
        m_backdrop.setShowRecording(false);
        co_return;
    }
    if (*path != m_video.url() || !(m_video.duration() > 0s)) {
        co_await m_video.load(*path);
        if (!self || load != m_loads)
            co_return;
    }
    if (m_video.duration() > 0s)
        syncBackdropTime();
    else
        m_status.setMessage(
            tr("Couldn't read the screen recording (%1).").arg(QFileInfo(*path).fileName()));
}

void RecordingBackdrop::syncBackdropTime()
{
    if (!m_backdrop.useRecording() || !(m_video.duration() > 0s))
        return;
    const std::optional<Seconds> time =
        m_timeline.timeline().videoTime(m_playback.time(), m_video.duration());
    if (time)
        m_video.requestFrame(*time);
}

} // namespace velvane
