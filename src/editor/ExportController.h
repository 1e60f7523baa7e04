#pragma once

#include "base/Seconds.h"
#include "editor/BackdropController.h"
#include "editor/ExportPanel.h"
#include "editor/OpenGesture.h"

#include <QCoroTask>
#include <QElapsedTimer>

#include <atomic>

namespace velvane {

/// Exports the demo to a movie and tells the status line how it went. Main thread only.
///
/// Must not be destroyed while exporting: see cancelThen().
class ExportController : public QObject {
    Q_OBJECT
public:
    ExportController(Project &project, StatusLine &status, BackdropController &backdrop,
                     OpenGesture &gesture, AskWhereToExport ask, QObject *parent = nullptr);
    ~ExportController() override;

    /// Asks where to, and exports there. Nothing happens while exporting or asking.
    void exportMovie();
    /// Exports to this file. Ends when the outcome stands in the status line; throws nothing.
    QCoro::Task<> exportTo(QString path);
    /// Ends the export soon; the movie keeps the frames done so far. The status line will say
    /// "Export cancelled."
    void cancel() { m_cancelled = true; }

    bool isExporting() const { return m_isExporting; }
    /// 0 to 1.
    double exportProgress() const { return m_progress; }
    /// At the pace so far; nothing while it is too early to tell.
    std::optional<Seconds> timeLeft() const;

    /// For a window that is closing: while exporting, cancels and returns true; the window then
    /// ignores the close, and `again` is called, queued, when the export is over.
    bool cancelThen(QObject *context, const std::function<void()> &again);

Q_SIGNALS:
    void isExportingChanged();
    void exportProgressChanged();
    /// The export is over, however it ended.
    void finished();

private:
    Snapshot exportSnapshot() const;
    void begin();
    void end(const QString &message);
    void setProgress(double progress);

    Project &m_project;
    StatusLine &m_status;
    BackdropController &m_backdrop;
    OpenGesture &m_gesture;
    AskWhereToExport m_ask;
    double m_progress = 0;
    QElapsedTimer m_clock;
    bool m_isExporting = false;
    // The worker asks it.
    std::atomic<bool> m_cancelled = false;
};

} // namespace velvane
