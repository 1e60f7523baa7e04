#include "capture/MovieWorker.h"

namespace velvane {

namespace {

// Requests, as a hand makes them at the display's rate: a dozen pictures a second are left.
constexpr int mostPassedOver = 4;

} // namespace

MovieWorker::MovieWorker(std::unique_ptr<MovieReader> reader, Decoded decoded)
    : m_reader(std::move(reader))
    , m_decoded(std::move(decoded))
    , m_thread([this] { run(); })
{}

MovieWorker::~MovieWorker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void MovieWorker::request(Seconds time, int generation)
{
    {
        const std::lock_guard lock(m_mutex);
        m_request = Request{time, generation};
        ++m_unanswered;
        m_newest = generation;
    }
    m_wake.notify_one();
}

void MovieWorker::run()
{
    while (const std::optional<Request> request = wait())
        decode(*request);
}

std::optional<MovieWorker::Request> MovieWorker::wait()
{
    std::unique_lock lock(m_mutex);
    m_wake.wait(lock, [this] { return m_isEnding || m_request; });
    if (m_isEnding)
        return {};
    m_request->isCarried = m_unanswered > mostPassedOver;
    return std::exchange(m_request, {});
}

void MovieWorker::decode(const Request &request)
{
    const auto isStale = [&] {
        return m_isEnding || (!request.isCarried && m_newest != request.generation);
    };
    const std::optional<MoviePicture> picture = m_reader->picture(request.time, isStale);
    if (isStale())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_unanswered = 0;
    }
    if (!picture)
        return;
    const Result result{request.time, request.generation, *picture, picture->image(),
                        request.isCarried};
    if (!result.image.isNull())
        m_decoded(result);
}

} // namespace velvane
