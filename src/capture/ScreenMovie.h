#pragma once

#include "capture/PictureFit.h"
#include "media/MovieWriter.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace velvane {

/// The movie of what one capture stream sees. Any thread; nothing throws.
class ScreenMovie {
public:
    using Ended = std::function<void(const QString &reason)>;

    /// `begun` is the movie's beginning in the time of the frames; `ended` is called once, on the
    /// thread that notices, when the movie is not complete to its end.
    ScreenMovie(std::unique_ptr<MovieWriter> writer, QSize size, Seconds begun, Ended ended);

    /// The first picture shows from the beginning on, whenever it was taken.
    void append(const Frame &frame);
    /// The stream has ended by itself: completes the movie with what it has.
    void end(Seconds at, const QString &reason);
    /// Completes the movie, which reaches to that moment. Nothing happens a second time.
    void finish(Seconds at);

    /// Has it no picture? Does not wait for what is being written.
    bool isEmpty() const { return m_isEmpty; }

private:
    QString complete(Seconds at);
    void close();

    std::mutex m_mutex;
    std::unique_ptr<MovieWriter> m_writer; ///< null once the movie is complete
    PictureFit m_fit;
    const Seconds m_begun;
    const Ended m_ended;
    Seconds m_last{0}; ///< of the movie
    std::atomic<bool> m_isEmpty = true;
};

} // namespace velvane
