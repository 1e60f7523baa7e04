#pragma once

#include "capture/RunRecorder.h"
#include "capture/StopRequest.h"
#include "live/RunOptions.h"
#include "model/Project.h"
#include "platform/Desktop.h"
#include "timeline/Playback.h"

#include <QCoroTask>

namespace velvane {

/// Performs the demo on the real desktop: checks, countdown, run, report. Main thread only.
///
/// A run that is recorded becomes the demo's recording, without an undo entry.
///
/// Esc ends a run wherever the focus is. Must not be destroyed while busy: see cancelThen().
class LiveRunController : public QObject {
    Q_OBJECT
public:
    enum class Outcome { refused, stopped, finished };

    /// Asks for the options at the beginning of each run.
    LiveRunController(Project &project, Playback &playback, Desktop &desktop,
                      std::function<RunOptions()> options, QObject *parent = nullptr);
    ~LiveRunController() override;

    /// What a run performs: the demo, or its steps from one on, the cursor starting where the demo
    /// would have left it.
    Snapshot liveSnapshot(std::optional<QUuid> from) const;

    /// May a run start now?
    bool canRunLive() const { return missing().isEmpty(); }
    /// Why none can start now: one sentence for a tooltip; empty when one can, or when only the
    /// permission is withheld, for which a run asks.
    QString missing() const;
    /// Lets none start while something else goes on: the reason for missing(); empty ends it.
    void hold(const QString &reason);

    /// From the beginning of the countdown until the report.
    bool isBusy() const { return m_isBusy; }
    /// True while the steps are performed.
    bool isRunningLive() const { return m_isRunningLive; }
    /// What the countdown shows; 0 when there is none.
    int liveCountdown() const { return m_liveCountdown; }
    /// Has the run been asked to stop?
    bool liveCancel() const { return m_stop.isMade(); }

    /// Runs the demo, from one step on when one is given. Ends after the report. Nothing happens
    /// while busy.
    QCoro::Task<> runLive(std::optional<QUuid> from = {});
    /// How the last run ended.
    Outcome outcome() const { return m_outcome; }
    /// The movie of the last run; empty when there is none.
    QString recordingPath() const { return m_recordingPath; }
    /// Why no run can be recorded: one sentence for a tooltip; empty when one can, or when only
    /// the permission is withheld.
    QString recordingMissing() const;

    /// Stops the run within one event, as Esc does. Any thread.
    void cancel() { m_stop.make(); }
    /// For a window that is closing: while busy, cancels and returns true; the window then ignores
    /// the close, and `again` is called, queued, when the run is over.
    bool cancelThen(QObject *context, const std::function<void()> &again);

Q_SIGNALS:
    /// A run is asked for: what is being edited shall become part of the demo now.
    void aboutToRun();
    /// What the status line shall say.
    void reported(const QString &message);
    void missingChanged();
    void isRunningLiveChanged();
    void liveCountdownChanged();
    /// The run is over, however it ended; not after a refusal.
    void finished();

private:
    bool begin(const Snapshot &demo);
    QString refusal(const Snapshot &demo);
    void setBusy(bool busy);
    void setRunningLive(bool running);
    void setLiveCountdown(int number);
    QCoro::Task<> countDown();
    void startRecording(const Snapshot &demo);
    QCoro::Task<> perform(const Snapshot &demo);
    QCoro::Task<> stopRecording();
    void end();
    QString comeBack();

    Project &m_project;
    Playback &m_playback;
    Desktop &m_desktop;
    const std::function<RunOptions()> m_readOptions;
    RunOptions m_options;
    QString m_held;
    StopRequest m_stop;
    std::unique_ptr<RunRecorder> m_recorder;
    QString m_recordingPath;
    Outcome m_outcome = Outcome::refused;
    bool m_isBusy = false;
    bool m_isRunningLive = false;
    int m_liveCountdown = 0;
};

} // namespace velvane
