#include "media/QueuedWriter.h"

#include <utility>

namespace velvane {

namespace {

// A key picture of a large display takes about as long to encode as so many at the full rate take
// to come.
constexpr size_t mostWaiting = 6;
// What waits is lost when the process is killed.
constexpr Seconds longestWait = 0.25s;

} // namespace

QueuedWriter::QueuedWriter(std::unique_ptr<MovieWriter> writer)
    : m_writer(std::move(writer))
    , m_thread([this] { run(); })
{}

QueuedWriter::~QueuedWriter()
{
    end();
}

void QueuedWriter::append(const Frame &frame)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_failure || hasRoom(frame); });
    if (m_failure)
        std::rethrow_exception(m_failure);
    m_waiting.push_back(frame);
    m_changed.notify_all();
}

bool QueuedWriter::hasRoom(const Frame &frame) const
{
    return m_waiting.empty()
           || (m_waiting.size() < mostWaiting
               && frame.time - m_waiting.front().time <= longestWait);
}

void QueuedWriter::finish()
{
    if (!m_thread.joinable())
        return;
    end();
    m_writer->finish();
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void QueuedWriter::end()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void QueuedWriter::run()
{
    try {
        while (const std::optional<Frame> frame = next())
            m_writer->append(*frame);
    } catch (...) {
        fail(std::current_exception());
    }
}

std::optional<Frame> QueuedWriter::next()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isEnding || !m_waiting.empty(); });
    if (m_waiting.empty())
        return {};
    Frame frame = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_changed.notify_all();
    return frame;
}

void QueuedWriter::fail(std::exception_ptr failure)
{
    const std::lock_guard lock(m_mutex);
    m_failure = std::move(failure);
    m_waiting.clear();
    m_changed.notify_all();
}

} // namespace velvane
