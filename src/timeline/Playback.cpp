#include "timeline/Playback.h"

#include <algorithm>
#include <cmath>

namespace velvane {

Playback::Playback(QObject *parent) : QObject(parent)
{
    connect(&m_ticker, &Ticker::ticked, this, &Playback::tick);
}

void Playback::setTime(Seconds time)
{
    if (time == m_time || !std::isfinite(time.count()))
        return;
    m_time = time;
    Q_EMIT timeChanged();
}

void Playback::setTotal(Seconds total)
{
    if (total == m_total || !std::isfinite(total.count()))
        return;
    m_total = total;
    Q_EMIT totalChanged();
}

void Playback::play(int fps)
{
    if (m_total <= 0s)
        return;
    if (m_time >= m_total)
        setTime(0s);
    m_interval = Seconds(1.0 / std::max(fps, 1));
    m_ticker.start(m_interval);
    setPlaying(true);
}

void Playback::pause()
{
    m_ticker.stop();
    setPlaying(false);
}

void Playback::toggle(int fps)
{
    if (m_isPlaying)
        pause();
    else
        play(fps);
}

void Playback::goToStart()
{
    setTime(0s);
}

void Playback::tick()
{
    const Seconds next = m_time + m_interval;
    if (next < m_total) {
        setTime(next);
        return;
    }
    setTime(m_total);
    pause();
}

void Playback::setPlaying(bool playing)
{
    if (playing == m_isPlaying)
        return;
    m_isPlaying = playing;
    Q_EMIT isPlayingChanged();
}

} // namespace velvane
