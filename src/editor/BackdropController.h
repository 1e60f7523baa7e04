#pragma once

#include "editor/StatusLine.h"
#include "model/Project.h"
#include "platform/Desktop.h"

namespace velvane {

/// What lies behind the cursor's path: the live screen, a recording, or the demo's own picture.
/// Main thread only.
///
/// Live and Recording exclude each other; both start off, and each is used only while not frozen.
/// Whoever captures or plays hands the pictures in with setLiveFrame() and setRecordingFrame().
class BackdropController : public QObject {
    Q_OBJECT
public:
    BackdropController(Project &project, StatusLine &status, Desktop &desktop,
                       QObject *parent = nullptr);

    bool showLive() const { return m_showLive; }
    /// Switching on says why instead when liveMissing().
    void setShowLive(bool show);
    bool showRecording() const { return m_showRecording; }
    /// Switching on says why instead when recordingMissing().
    void setShowRecording(bool show);
    bool frozen() const { return m_frozen; }
    /// On: freezeFrame(). Off: the source shows again, the demo keeps its picture.
    void setFrozen(bool frozen);

    bool useLive() const { return m_showLive && !m_frozen; }
    bool useRecording() const { return m_showRecording && !m_frozen; }
    /// The picture to draw: the source in use, or the demo's own while that has none yet.
    const QImage &backdrop() const;

    /// Makes the source's newest picture the demo's backdrop and the canvas as large: "Freeze
    /// Frame". Without a picture Freeze stays off and the status line says so.
    void freezeFrame();
    /// Is Freeze on, or a source whose picture it would keep?
    bool canFreeze() const { return m_frozen || m_showLive || m_showRecording; }
    /// Is there a picture to freeze?
    bool hasFrame() const { return !source().image.isNull(); }

    /// Why the live screen, or a recording, cannot be shown: one sentence for a tooltip; empty when
    /// it can.
    QString liveMissing() const { return m_liveMissing; }
    QString recordingMissing() const { return m_recordingMissing; }
    void setLiveMissing(const QString &reason);
    void setRecordingMissing(const QString &reason);

    /// The newest picture and the size of what it shows, in points; a null one when there is none.
    void setLiveFrame(const QImage &image, QSizeF size);
    /// The same when the picture differs from the last one only inside `changed`, in its pixels.
    void updateLiveFrame(const QImage &image, QSizeF size, const QRegion &changed);
    /// What setLiveFrame() was last given.
    const QImage &liveImage() const { return m_live.image; }
    QSizeF liveSize() const { return m_live.size; }
    void setRecordingFrame(const QImage &image, QSizeF size);

Q_SIGNALS:
    void showLiveChanged();
    void showRecordingChanged();
    void frozenChanged();
    /// backdrop() changed.
    void backdropChanged();
    /// backdrop() changed inside `changed` only, in its pixels; its size is the same.
    void backdropUpdated(const QRegion &changed);
    /// canFreeze() or hasFrame() changed.
    void canFreezeChanged();
    void missingChanged();

private:
    struct Source {
        QImage image;
        QSizeF size;
    };

    const Source &source() const { return m_showRecording ? m_recording : m_live; }
    void change(const std::function<void()> &mutation);

    Project &m_project;
    StatusLine &m_status;
    Source m_live;
    Source m_recording;
    QString m_liveMissing;
    QString m_recordingMissing;
    bool m_showLive = false;
    bool m_showRecording = false;
    bool m_frozen = false;
};

} // namespace velvane
