#include "capture/VideoBackdrop.h"

#include "base/Background.h"

#include <QPointer>

namespace velvane {

VideoBackdrop::VideoBackdrop(QObject *parent) : QObject(parent) {}

VideoBackdrop::~VideoBackdrop()
{
    if (m_isUnwanted)
        *m_isUnwanted = true;
}

QCoro::Task<> VideoBackdrop::load(QString url)
{
    reset();
    m_url = url;
    const int generation = m_generation;
    const auto isUnwanted = std::make_shared<std::atomic<bool>>(false);
    m_isUnwanted = isUnwanted;
    const auto opening = std::make_shared<MovieOpening>();
    const std::function<void()> work = [opening, isUnwanted, url] {
        *opening = MovieReader::open(url, [isUnwanted] { return isUnwanted->load(); });
    };
    const QPointer<VideoBackdrop> self(this);
    co_await inBackground(work);
    if (!self || generation != m_generation || !opening->reader)
        co_return;
    begin(std::move(opening->reader));
}

void VideoBackdrop::begin(std::unique_ptr<MovieReader> reader)
{
    const Seconds duration = reader->duration();
    const QSizeF size = reader->size();
    m_firstGeneration = m_generation + 1;
    m_worker = std::make_unique<MovieWorker>(std::move(reader), [this](const auto &result) {
        QMetaObject::invokeMethod(
            this, [this, result] { accept(result); }, Qt::QueuedConnection);
    });
    setDuration(duration);
    setSize(size);
    requestFrame(0s);
}

void VideoBackdrop::requestFrame(Seconds time)
{
    if (!m_worker || !(m_duration > 0s))
        return;
    // Written so that what is no number becomes 0.
    setCurrentTime(time > 0s ? std::min(time, m_duration) : Seconds(0));
    const qint64 key = FrameCache::key(m_currentTime);
    const MoviePicture *kept = m_cache.find(key);
    if (!kept)
        m_worker->request(m_currentTime, ++m_generation);
    else if (key != m_shownKey)
        show(key, kept->image());
}

void VideoBackdrop::accept(const MovieWorker::Result &result)
{
    if (result.generation != m_generation)
        return showMeanwhile(result);
    const qint64 key = FrameCache::key(result.time);
    m_cache.store(key, result.picture);
    if (m_size.isEmpty())
        setSize(result.image.size());
    // The cache may have answered a newer request.
    if (key == FrameCache::key(m_currentTime))
        show(key, result.image);
}

// While request follows request, what was asked for a moment ago tells more than what was shown
// before.
void VideoBackdrop::showMeanwhile(const MovieWorker::Result &result)
{
    const bool isOfThisMovie = result.generation >= m_firstGeneration;
    const bool isAnswered = m_shownKey == FrameCache::key(m_currentTime);
    if (result.isCarried && isOfThisMovie && m_worker && !isAnswered)
        show(FrameCache::key(result.time), result.image);
}

void VideoBackdrop::show(qint64 key, const QImage &frame)
{
    m_shownKey = key;
    setFrame(frame);
}

void VideoBackdrop::reset()
{
    if (m_isUnwanted)
        *m_isUnwanted = true;
    m_worker.reset();
    m_cache.clear();
    m_shownKey = {};
    m_url.clear();
    ++m_generation;
    setFrame({});
    setSize({});
    setDuration(0s);
    setCurrentTime(0s);
}

void VideoBackdrop::setFrame(const QImage &frame)
{
    if (frame.cacheKey() == m_frame.cacheKey())
        return;
    m_frame = frame;
    Q_EMIT frameChanged();
}

void VideoBackdrop::setSize(QSizeF size)
{
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
}

void VideoBackdrop::setCurrentTime(Seconds time)
{
    if (time == m_currentTime)
        return;
    m_currentTime = time;
    Q_EMIT currentTimeChanged();
}

void VideoBackdrop::setDuration(Seconds duration)
{
    if (duration == m_duration)
        return;
    m_duration = duration;
    Q_EMIT durationChanged();
}

} // namespace velvane
