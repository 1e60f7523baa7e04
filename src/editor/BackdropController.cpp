#include "editor/BackdropController.h"

#include <cmath>
#include <limits>
#include <utility>

namespace velvane {

namespace {

bool fitsInt(double value)
{
    return std::isfinite(value) && std::abs(value) <= std::numeric_limits<int>::max();
}

} // namespace

BackdropController::BackdropController(Project &project, StatusLine &status, Desktop &desktop,
                                       QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_status(status)
    , m_liveMissing(desktop.capture().missing())
{
    connect(&project, &Project::backgroundChanged, this, &BackdropController::backdropChanged);
}

void BackdropController::setShowLive(bool show)
{
    if (show && !m_liveMissing.isEmpty()) {
        m_status.setMessage(m_liveMissing);
        return;
    }
    change([=, this] {
        m_showLive = show;
        m_showRecording = m_showRecording && !show;
    });
}

void BackdropController::setShowRecording(bool show)
{
    if (show && !m_recordingMissing.isEmpty()) {
        m_status.setMessage(m_recordingMissing);
        return;
    }
    change([=, this] {
        m_showRecording = show;
        m_showLive = m_showLive && !show;
    });
}

void BackdropController::setFrozen(bool frozen)
{
    if (frozen == m_frozen)
        return;
    if (frozen)
        freezeFrame();
    else
        change([this] { m_frozen = false; });
}

const QImage &BackdropController::backdrop() const
{
    if (useRecording() && !m_recording.image.isNull())
        return m_recording.image;
    if (useLive() && !m_live.image.isNull())
        return m_live.image;
    return m_project.background();
}

void BackdropController::freezeFrame()
{
    const Source frame = source();
    if (frame.image.isNull()) {
        change([this] { m_frozen = false; });
        m_status.setMessage(m_showRecording
                                ? tr("No recording frame to freeze yet.")
                                : tr("No live frame yet — grant Screen Recording first."));
        return;
    }
    m_project.edit(tr("Freeze Frame"), [&] {
        m_project.setBackground(frame.image);
        const QSizeF size = frame.size;
        if (!size.isNull() && fitsInt(size.width()) && fitsInt(size.height()))
            m_project.setCanvasSize({std::trunc(size.width()), std::trunc(size.height())});
    });
    change([this] { m_frozen = true; });
}

void BackdropController::setLiveMissing(const QString &reason)
{
    if (reason == m_liveMissing)
        return;
    m_liveMissing = reason;
    if (!reason.isEmpty())
        setShowLive(false);
    Q_EMIT missingChanged();
}

void BackdropController::setRecordingMissing(const QString &reason)
{
    if (reason == m_recordingMissing)
        return;
    m_recordingMissing = reason;
    if (!reason.isEmpty())
        setShowRecording(false);
    Q_EMIT missingChanged();
}

void BackdropController::setLiveFrame(const QImage &image, QSizeF size)
{
    change([&] { m_live = {image, size}; });
}

void BackdropController::updateLiveFrame(const QImage &image, QSizeF size, const QRegion &changed)
{
    if (!useLive() || m_live.image.isNull() || image.size() != m_live.image.size())
        return setLiveFrame(image, size);
    m_live = {image, size};
    if (!changed.isEmpty())
        Q_EMIT backdropUpdated(changed);
}

void BackdropController::setRecordingFrame(const QImage &image, QSizeF size)
{
    change([&] { m_recording = {image, size}; });
}

void BackdropController::change(const std::function<void()> &mutation)
{
    const bool live = m_showLive;
    const bool recording = m_showRecording;
    const bool froze = m_frozen;
    const auto freezing = [this] { return std::pair(canFreeze(), hasFrame()); };
    const auto couldFreeze = freezing();
    const qint64 picture = backdrop().cacheKey();
    mutation();
    if (live != m_showLive)
        Q_EMIT showLiveChanged();
    if (recording != m_showRecording)
        Q_EMIT showRecordingChanged();
    if (froze != m_frozen)
        Q_EMIT frozenChanged();
    if (couldFreeze != freezing())
        Q_EMIT canFreezeChanged();
    if (picture != backdrop().cacheKey())
        Q_EMIT backdropChanged();
}

} // namespace velvane
