#pragma once

#include "capture/ActionRecorder.h"
#include "capture/RunRecorder.h"
#include "capture/StopRequest.h"
#include "model/Project.h"
#include "timeline/Playback.h"

#include <QCoroTask>

namespace velvane {

/// What becomes of a canvas that is smaller than the screen: on it, places beyond its edge are
/// recorded at the edge.
enum class CanvasChoice { matchScreen, keepCanvas };

/// Records real mouse and keyboard actions and appends them to the demo as steps: checks,
/// countdown, recording until Esc, report. A movie of the screen is made alongside, which becomes
/// the demo's recording; without one the rest goes on. Main thread only.
///
/// Must not be destroyed while busy: see cancelThen().
class RecordActionsController : public QObject {
    Q_OBJECT
public:
    enum class Outcome { refused, nothing, recorded };
    using Chosen = std::function<void(CanvasChoice)>;
    using AskAboutCanvas = std::function<void(QSizeF screen, Chosen chosen)>;

    RecordActionsController(Project &project, Playback &playback, Desktop &desktop,
                            QObject *parent = nullptr);
    ~RecordActionsController() override;

    /// Who asks what becomes of a smaller canvas; without one it is kept. The answer may never
    /// come: then nothing is recorded.
    void askAboutCanvasWith(AskAboutCanvas ask) { m_ask = std::move(ask); }
    /// The primary display's size, in points, when it is larger than the canvas in any direction.
    std::optional<QSizeF> largerScreen() const;

    /// From the moment capturing starts until Esc is seen.
    bool isRecording() const { return m_isRecording; }
    /// From the start, countdown included, until the report.
    bool isBusy() const { return m_isBusy; }
    /// May recording start or stop now?
    bool canRecord() const { return missing().isEmpty(); }
    /// Why it cannot be done here: one sentence for a tooltip; empty when it can.
    QString missing() const;

    /// Lets none start while something else goes on: the reason for missing(); empty ends it.
    void hold(const QString &reason);

    /// The command: asks about the canvas if that is to be asked, and records; stops while busy.
    void recordActions();
    /// Records until it is stopped, without asking. Ends after the report. Nothing happens while
    /// busy.
    QCoro::Task<> record();
    /// How the last recording ended.
    Outcome outcome() const { return m_outcome; }

    /// Stops the recording, as Esc does. Any thread.
    void cancel() { m_stop.make(); }
    /// Has it been asked to stop?
    bool recordCancel() const { return m_stop.isMade(); }
    /// For a window that is closing: while busy, cancels and returns true; the window then ignores
    /// the close, and `again` is called, queued, when the recording is over.
    bool cancelThen(QObject *context, const std::function<void()> &again);

    /// The demo as it would be if the recording ended now; as it is while nothing is recorded.
    DocState stateSoFar() const;

    /// The recorder of the current recording; null when there is none.
    ActionRecorder *recorder() const { return m_recorder.get(); }

Q_SIGNALS:
    /// A recording is asked for: what is being edited shall become part of the demo now.
    void aboutToRecord();
    /// What the status line shall say.
    void reported(const QString &message);
    void isRecordingChanged();
    void missingChanged();
    /// A movie was made alongside, and is the demo's recording now.
    void movieRecorded();
    /// After the report: the movie is not complete to the recording's end, in a sentence.
    void movieEnded(const QString &message);
    /// What made us busy is over, however it ended.
    void finished();

private:
    bool begin();
    bool prepare();
    std::unique_ptr<RunRecorder> startMovie();
    QCoro::Task<> capture();
    QList<Step> stepsSoFar() const;
    DocState withRecorded(const QList<Step> &steps) const;
    QString keep(const QList<Step> &steps);
    void end(const QString &message);
    void setBusy(bool busy);
    void setRecording(bool recording);

    Project &m_project;
    Playback &m_playback;
    Desktop &m_desktop;
    AskAboutCanvas m_ask;
    /// The answer; good for as long as the demo is open.
    std::optional<CanvasChoice> m_choice;
    /// In which places are recorded, and which the demo gets with them.
    QSizeF m_canvas;
    QString m_held;
    StopRequest m_stop;
    std::unique_ptr<ActionRecorder> m_recorder;
    /// Of the current recording; empty without one.
    QString m_movie;
    /// How much earlier than the recorder the movie began.
    Seconds m_ahead{0};
    /// What is to be told of a movie that broke off; empty while there is nothing.
    QString m_movieEnd;
    Outcome m_outcome = Outcome::refused;
    bool m_isBusy = false;
    bool m_isRecording = false;
};

} // namespace velvane
