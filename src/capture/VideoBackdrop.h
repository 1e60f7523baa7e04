#pragma once

#include "capture/FrameCache.h"
#include "capture/MovieWorker.h"

#include <QCoroTask>
#include <QObject>

namespace velvane {

/// Shows a movie's pictures on request. Main thread only; pictures are decoded on a thread of its
/// own.
///
/// Every request that the cache cannot answer and every reset() begins a new generation; a picture
/// of an older one is neither kept nor shown, but for one now and then while requests come faster
/// than pictures: it is shown until a newer one is there. What cannot be decoded leaves the last
/// picture.
class VideoBackdrop : public QObject {
    Q_OBJECT
public:
    explicit VideoBackdrop(QObject *parent = nullptr);
    ~VideoBackdrop() override;

    /// The picture to draw; null when there is none yet.
    const QImage &frame() const { return m_frame; }
    /// Of the movie's pictures, in pixels; empty until known.
    QSizeF size() const { return m_size; }
    /// The movie time asked for last, clamped into the movie.
    Seconds currentTime() const { return m_currentTime; }
    /// 0 while no movie is loaded, and for a file that is no movie.
    Seconds duration() const { return m_duration; }
    /// Path of the movie that load() was given.
    const QString &url() const { return m_url; }

    /// Forgets the movie so far, opens another and asks for its first picture. duration() tells
    /// whether it could be read. Ends early when reset() or another load() comes in between.
    QCoro::Task<> load(QString url);

    /// Shows the movie's picture for a moment, from the cache or by decoding it.
    ///
    /// `time` is movie time; it is clamped into the movie. A picture that is decoded arrives later
    /// through frameChanged(). Nothing happens while no movie is loaded.
    void requestFrame(Seconds time);

    /// Forgets the movie and all its pictures.
    void reset();

Q_SIGNALS:
    void frameChanged();
    void sizeChanged();
    void currentTimeChanged();
    void durationChanged();

private:
    void begin(std::unique_ptr<MovieReader> reader);
    void accept(const MovieWorker::Result &result);
    void showMeanwhile(const MovieWorker::Result &result);
    void show(qint64 key, const QImage &frame);
    void setFrame(const QImage &frame);
    void setSize(QSizeF size);
    void setCurrentTime(Seconds time);
    void setDuration(Seconds duration);

    QImage m_frame;
    QSizeF m_size;
    Seconds m_currentTime{0};
    Seconds m_duration{0};
    QString m_url;
    FrameCache m_cache;
    /// Of frame(), while there is one.
    std::optional<qint64> m_shownKey;
    int m_generation = 0;
    /// The first of the movie that is loaded.
    int m_firstGeneration = 0;
    /// Raised when the movie being opened is no longer wanted; shared with who opens it.
    std::shared_ptr<std::atomic<bool>> m_isUnwanted;
    /// The last member: its thread calls the others until it ends.
    std::unique_ptr<MovieWorker> m_worker;
};

} // namespace velvane
