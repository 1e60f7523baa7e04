#pragma once

#include "media/MovieReader.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace velvane {

/// Decodes a movie's pictures on a thread of its own: always the one asked for last. Requests in
/// between are dropped, also when they are already being worked on; but after several in a row one
/// is carried to its end, so that a hand that moves on and on sees where it is.
class MovieWorker {
public:
    struct Result {
        Seconds time{0}; ///< as it was asked for
        int generation = 0;
        MoviePicture picture;
        /// The picture to show.
        QImage image;
        /// Is it one that was carried to its end? A newer request may wait.
        bool isCarried = false;
    };
    /// Called on the worker's thread, for each picture that could be decoded in time.
    using Decoded = std::function<void(const Result &result)>;

    MovieWorker(std::unique_ptr<MovieReader> reader, Decoded decoded);
    /// Waits for the thread, which ends after the packet it is at. No call comes after that.
    ~MovieWorker();
    Q_DISABLE_COPY_MOVE(MovieWorker)

    /// Asks for the picture at a movie time; `generation` grows with every request. Any thread.
    void request(Seconds time, int generation);

private:
    struct Request {
        Seconds time;
        int generation;
        /// Whatever is asked for meanwhile.
        bool isCarried = false;
    };

    void run();
    std::optional<Request> wait();
    void decode(const Request &request);

    std::unique_ptr<MovieReader> m_reader;
    Decoded m_decoded;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    /// The newest request that is not yet begun; under the mutex.
    std::optional<Request> m_request;
    /// How many there were since the last picture; under the mutex.
    int m_unanswered = 0;
    std::atomic<int> m_newest{0};
    std::atomic<bool> m_isEnding{false};
    std::thread m_thread;
};

} // namespace velvane
