#pragma once

#include "capture/RecordMode.h"
#include "media/MovieWriter.h"
#include "platform/Desktop.h"

#include <QCoroTask>
#include <QDateTime>

namespace velvane {

/// Records the screen into a movie in the user's folder of recordings. One recorder serves one
/// recording. Main thread only; must not be destroyed while stop() is under way.
class RunRecorder : public QObject {
    Q_OBJECT
public:
    /// What a recording is made with.
    struct Making {
        /// Creates the movie's file, in pixels and even; throws std::exception.
        std::function<std::unique_ptr<MovieWriter>(const QString &path, QSize size)> writer;
        /// The local time, of which the file gets its name.
        std::function<QDateTime()> date;
    };

    explicit RunRecorder(Desktop &desktop, QObject *parent = nullptr);
    RunRecorder(Desktop &desktop, Making making, QObject *parent = nullptr);
    /// Completes a recording that still runs.
    ~RunRecorder() override;

    /// Begins to record and returns the movie's path. Throws std::exception with one line for the
    /// user; there is no file then.
    ///
    /// With window scope, what the main window of an application of that name covers now, else the
    /// primary display. `pointScaled` takes one pixel a point instead of the display's own.
    QString start(RecordScope scope, const QString &appName, bool showsCursor, bool pointScaled);

    /// Ends the recording; ends when the movie is complete, or after 2 s. A movie without any
    /// picture is removed. Nothing happens when none runs.
    QCoro::Task<> stop();

    /// From start() to stop(), also when it has ended by itself.
    bool isRecording() const { return m_take != nullptr; }
    /// The movie's path, also after stop(); empty when there is no movie.
    QString url() const { return m_url; }
    /// Was there no such window, so that the display was recorded?
    bool fellBackToScreen() const { return m_fellBackToScreen; }
    /// The moment that is the movie's beginning, in Clock::now()'s time; before start() returns by
    /// as long as opening the movie and the stream takes.
    Seconds begun() const { return m_begun; }

    /// The largest window on screen, wider than 120 points and higher than 80, of an application
    /// of this name, in whatever case and with spaces around it; among equals the first.
    static std::optional<WindowInfo> mainWindow(const QString &ofApp,
                                                const std::vector<WindowInfo> &in);

Q_SIGNALS:
    /// The recording has ended by itself; what was recorded until then is kept.
    void ended(const QString &reason);

private:
    struct Take;

    std::optional<QRectF> windowRegion(const QString &appName, const Display &display);
    QString makeOutputURL() const;
    void open(const CaptureRequest &request, QSize size);
    void endByItself(const QString &reason);
    void removeIfEmpty(const Take &take);
    static QCoro::Task<> finish(std::shared_ptr<Take> take, Seconds at,
                                std::shared_ptr<bool> isDone);

    Desktop &m_desktop;
    const Making m_making;
    // Shared with the background, which may be at it for longer than stop() waits.
    std::shared_ptr<Take> m_take;
    QString m_url;
    bool m_fellBackToScreen = false;
    Seconds m_begun{0};
};

} // namespace velvane
