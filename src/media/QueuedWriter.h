#pragma once

#include "media/MovieWriter.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace velvane {

/// Hands frames to a slower writer on a thread of its own, so that who takes pictures of something
/// that goes on does not take them late because the ones before are still being encoded.
///
/// At most 6 frames wait, and no longer than 0.25 s of their own time: then append() waits. A
/// writer's failure comes out of the next call. A frame that waits shares its picture until then.
class QueuedWriter final : public MovieWriter {
public:
    explicit QueuedWriter(std::unique_ptr<MovieWriter> writer);
    /// Hands on what waits.
    ~QueuedWriter() override;

    void append(const Frame &frame) override;
    void finish() override;

private:
    void run();
    std::optional<Frame> next();
    bool hasRoom(const Frame &frame) const;
    void fail(std::exception_ptr failure);
    void end();

    const std::unique_ptr<MovieWriter> m_writer;
    std::mutex m_mutex;
    std::condition_variable m_changed; // anything of the following
    std::deque<Frame> m_waiting;
    std::exception_ptr m_failure;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace velvane
