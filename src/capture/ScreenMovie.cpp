#include "capture/ScreenMovie.h"

#include <utility>

namespace velvane {

namespace {

// How long the movie's last picture shows.
constexpr Seconds lastPicture = 1s / 60;

} // namespace

ScreenMovie::ScreenMovie(std::unique_ptr<MovieWriter> writer, QSize size, Seconds begun,
                         Ended ended)
    : m_writer(std::move(writer))
    , m_fit(size)
    , m_begun(begun)
    , m_ended(std::move(ended))
{}

void ScreenMovie::append(const Frame &frame)
{
    const std::lock_guard lock(m_mutex);
    if (!m_writer)
        return;
    try {
        Frame fitted = m_fit.fitted(frame);
        fitted.time = m_isEmpty ? 0s : frame.time - m_begun;
        m_writer->append(fitted);
        m_last = fitted.time;
        m_isEmpty = false;
    } catch (const std::exception &error) {
        close();
        m_ended(QString::fromUtf8(error.what()));
    }
}

void ScreenMovie::end(Seconds at, const QString &reason)
{
    const std::lock_guard lock(m_mutex);
    if (!m_writer)
        return;
    complete(at);
    m_ended(reason);
}

void ScreenMovie::finish(Seconds at)
{
    const std::lock_guard lock(m_mutex);
    if (!m_writer)
        return;
    const QString failure = complete(at);
    if (!failure.isEmpty())
        m_ended(failure);
}

// Ends the writing; why that failed, or nothing.
QString ScreenMovie::complete(Seconds at)
{
    QString failure;
    try {
        // What it showed last it shows until the end.
        const Seconds last = at - m_begun - lastPicture;
        if (!m_isEmpty && last > m_last)
            m_writer->append({{}, {}, last});
        m_writer->finish();
    } catch (const std::exception &error) {
        failure = QString::fromUtf8(error.what());
    }
    m_writer.reset();
    return failure;
}

// After a failure, which it need not tell again.
void ScreenMovie::close()
{
    try {
        m_writer->finish();
    } catch (const std::exception &) {
    }
    m_writer.reset();
}

} // namespace velvane
